# cmake -DTEXT=FILE -DSOURCE=FILE -P CheckSnippet.cmake: fails unless the text shows the source as it stands.
file(READ "${TEXT}" text)
file(READ "${SOURCE}" source)
string(REGEX REPLACE ".*[.]" "" language "${SOURCE}")
string(REPLACE "py" "python" language "${language}")
string(FIND "${text}" "```${language}\n${source}```\n" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${TEXT} does not show ${SOURCE} as it stands")
endif()

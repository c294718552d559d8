# cmake -DREADME=FILE -DSOURCE=FILE -P CheckSnippet.cmake: fails unless the text shows the source as it stands.
file(READ "${README}" readme)
file(READ "${SOURCE}" source)
string(FIND "${readme}" "```cpp\n${source}```\n" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${README} does not show ${SOURCE} as it stands")
endif()

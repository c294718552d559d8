# cmake -DCOMPILER=PATH -DINCLUDES=LIST -DSOURCE=FILE -DCASES=N -P Refused.cmake: fails unless the compiler takes case 0 of
# the source and refuses the cases 1 to N.
list(TRANSFORM INCLUDES PREPEND -I)
foreach(case RANGE ${CASES})
    execute_process(COMMAND "${COMPILER}" -std=c++20 -fsyntax-only -DZEB17_BUILDING -DCASE=${case} ${INCLUDES} "${SOURCE}"
        RESULT_VARIABLE result ERROR_VARIABLE errors)
    if(case EQUAL 0 AND NOT result EQUAL 0)
        message(FATAL_ERROR "the code around the cases does not compile:\n${errors}")
    elseif(case GREATER 0 AND result EQUAL 0)
        message(SEND_ERROR "case ${case} compiles")
    endif()
endforeach()

// The host as a program of a compiler that has a C library.
#include "host.h"

#include <stdio.h>

void say(const char* line)
{
    puts(line);
    fflush(stdout);
}

int main(int argc, char** argv)
{
    return argc == 2 ? run_host(argv[1]) != 0 : 2;
}

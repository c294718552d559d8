// A host in C99 that tries the interface as its users would, without the C library.
#ifndef HOST_H
#define HOST_H

// Runs all checks with the data file in that directory; gives the number of those that failed.
int run_host(const char* directory);

// What the program around it provides: writes a line to the user.
void say(const char* line);

#endif

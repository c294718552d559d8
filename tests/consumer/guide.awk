# The C++ blocks of a Markdown text, with the lines that they stand on. A block marked "cpp linux" is for Linux only.
/^```cpp/ && ($2 == "" || $2 == tolower(platform)) {
    inside = 1
    printf "#line %d \"guide.md\"\n", NR + 1
    next
}
/^```/ { inside = 0 }
inside

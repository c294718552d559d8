# The C++ blocks of a Markdown text, with the lines that they stand on. A block marked "cpp linux" is for Linux only; the
# blocks marked "cpp qt" are a program of their own, for the platform "qt".
/^```cpp/ && ($2 == tolower(platform) || ($2 == "" && platform != "qt")) {
    inside = 1
    printf "#line %d \"guide.md\"\n", NR + 1
    next
}
/^```/ { inside = 0 }
inside

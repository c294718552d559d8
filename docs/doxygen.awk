# Makes doxygen read the plain comments of the headers as they are meant: the one at the head of a file is its first
# class's too, if that has none of its own; one before a run of declarations holds for each of them that has none of its
# own; one behind a declaration is that declaration's; a line alone between blank lines begins a section.
function print_comment(text) {
    gsub(/(^|\n) *\/\/ ?/, "&\001", text)
    gsub(/\/\/ ?\001/, "/// ", text)
    printf "%s", text
}
function close_section() {
    if (in_section) print "///@}"
    in_section = 0
}
function begin_section() {
    close_section()
    sub(/\/\/ (---- )?/, "// \\name ", block)
    print_comment(block)
    print "///@{"
    in_section = 1
    section_indent = indent
}
# One line, or one with a blank comment below it.
function is_title(text) { return indent > 0 && (text ~ /^[^\n]*\n$/ || text ~ /^[^\n]*\n *\/\/\n/) || text ~ /^\/\/ ---- / }
NR == 1 { print "/// \\file" }
/^ *\/\// {
    if (block == "") indent = match($0, /[^ ]/) - 1
    block = block $0 "\n"
    next
}
block != "" {
    if (head == "") head = block
    if (/^ *$/ && is_title(block)) begin_section()
    else print_comment(block)
    shared = block
    shared_indent = indent
    commented = 1
    block = ""
}
/^ *$/ { shared = "" }
section_indent > 0 && /^}|^(public|protected|private|Q_SIGNALS)\>.*:/ { close_section() }
!commented && /^(class|struct) .*[^;]$/ && head != "" { print_comment(head) }
/^(class|struct) .*[^;]$/ { head = "\n" }
!commented && shared != "" && match($0, /[^ ]/) - 1 == shared_indent && /^ *[A-Za-z_~\[]/ && !/[;,{}0-9] +\/\/ / && last !~ /^ *template/ {
    print_comment(shared)
}
{
    commented = 0
    last = $0
    sub(/[;,{}0-9] +\/\/ /, "&\001")
    sub(/\/\/ \001/, "///< ")
    print
}
END { close_section() }

# Makes doxygen read the plain comments of the headers as they are meant: the one at the head of a file is its first
# class's too, if that has none of its own; one before a run of members holds for the whole run; one behind a
# declaration is that declaration's.
function close_group() {
    if (grouped) print "///@}"
    grouped = 0
}
NR == 1 {
    at_head = 1
    print "/// \\file"
}
at_head && /^\/\// { head = head "/" $0 "\n" }
!/^\/\// { at_head = 0 }
/^(class|struct) .*[^;]$/ {
    if (!commented) printf "%s", head
    head = ""
}
{ commented = /^\/\// }
/^ *$/ || /^ *[}]/ && grouped && match($0, /[^ ]/) <= indent { close_group() }
/^    \/\// && !grouped {
    indent = match($0, /[^ ]/)
    grouped = 1
    print "///@{"
}
/^ *\/\// { sub(/\/\/\/?/, "///") }
/[;,{}] +\/\/ / { sub(/\/\/ /, "///< ") }
{ print }

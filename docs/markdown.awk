# Gives the headings of a page the names by which links reach them, and says them to doxygen with the page's name in
# front, since its names hold for all pages.
function page_of(path) {
    sub(/.*\//, "", path)
    sub(/\.md$/, "", path)
    return path
}
function slug(title) {
    title = tolower(title)
    gsub(/[^a-z0-9 _-]/, "", title)
    gsub(/ /, "-", title)
    return title
}
/^```/ { in_code = !in_code }
!in_code && /^##+ / {
    title = $0
    sub(/^#+ /, "", title)
    $0 = $0 " {#" page_of(FILENAME) "-" slug(title) "}"
}
!in_code {
    gsub(/\]\((docs\/)?images\//, "](") # doxygen puts pictures beside the pages
    while (match($0, /\]\([a-zA-Z.\/-]*(\.md)?#[a-z]/)) {
        page = substr($0, RSTART + 2, RLENGTH - 4)
        if (page == "") page = FILENAME
        $0 = substr($0, 1, RSTART + 1) "@ref " page_of(page) "-" substr($0, RSTART + RLENGTH - 1)
    }
}
{ print }

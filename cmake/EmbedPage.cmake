# Writes a header with a page, its style sheet and its script, in the parts before and after its data.
#
#   cmake -DPAGE=page.html -DOUTPUT=page_text.h -P EmbedPage.cmake
#
# page.css and page.js stand beside the page.

get_filename_component(folder ${PAGE} DIRECTORY)
file(READ ${PAGE} page)

# Puts a file in the place of a line that refers to it.
function(embed line file before after)
    file(READ ${folder}/${file} text)
    string(REPLACE "${line}" "${before}\n${text}${after}" made "${page}")
    if(made STREQUAL page)
        message(FATAL_ERROR "${PAGE} is without ${line}")
    endif()
    set(page "${made}" PARENT_SCOPE)
endfunction()

embed("<link rel=\"stylesheet\" href=\"page.css\">" page.css "<style>" "</style>")
embed("<script src=\"page.js\"></script>" page.js "<script>" "</script>")

set(data "<script type=\"application/json\" id=\"data\">")
string(FIND "${page}" "${data}" begin)
if(begin EQUAL -1)
    message(FATAL_ERROR "${PAGE} is without ${data}")
endif()
string(LENGTH "${data}" length)
math(EXPR begin "${begin} + ${length}")
string(SUBSTRING "${page}" 0 ${begin} head)
string(SUBSTRING "${page}" ${begin} -1 tail)

file(WRITE ${OUTPUT} "// Made of ${PAGE}.

#include <string_view>

constexpr std::string_view page_head = R\"page(${head})page\";
constexpr std::string_view page_tail = R\"page(${tail})page\";
")

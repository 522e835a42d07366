# cmake -D OUTPUT=FILE -D MODULES=FILE;FILE... -P yang_texts.cmake: writes YANG modules as a C++ source.
set(rows "")
foreach(module IN LISTS MODULES)
  cmake_path(GET module STEM name)
  file(READ ${module} text)
  string(APPEND rows "    {\"${name}\", R\"yang(${text})yang\"},\n")
endforeach()
file(WRITE ${OUTPUT} "// Made from models/ by host/model/yang_texts.cmake.
#include \"yang_texts.h\"

#include <utility>

namespace model {

static constexpr std::pair<std::string_view, const char *> texts[] = {
${rows}};

const char *find_yang_text(std::string_view module)
{
    for (const auto &[name, text] : texts)
        if (name == module) return text;
    return nullptr;
}

}  // namespace model
")

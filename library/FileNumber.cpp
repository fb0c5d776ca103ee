#include "library/FileNumber.h"

#include "forms/Numbers.h"

namespace mirelle {

double NumberOfFileName(std::string_view fileName) {
    const std::size_t mark = fileName.rfind('_');
    return Val(mark == std::string_view::npos ? fileName : fileName.substr(mark + 1));
}

std::string CountText(int count) {
    return std::to_string(count) + (count == 1 ? " File" : " Files");
}

} // namespace mirelle

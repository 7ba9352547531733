#include "ui/theme/document_signs.h"

#include "base/windows_path.h"

namespace quelvarn {

std::string_view documentSign(std::string_view filename)
{
    switch (fileTypeCode(filename)) {
    case 1:
        return "part";
    case 2:
        return "drawing";
    case 3:
        return "assembly";
    case 4:
        return "sheet-metal";
    case 6:
        return "weldment";
    default:
        return "file";
    }
}

} // namespace quelvarn

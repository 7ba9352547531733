#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// Document paths are Windows paths on every system ("W:\Konstruktion\x.par"). These only cut texts.

// The part behind the last backslash; the whole text if there is none.
std::string DateiName(std::string_view documentPath);
// The part before the last backslash, when that is beyond the first character; otherwise "".
std::string Ordnername(std::string_view documentPath);
// The last three letters in lower case; "" for a shorter text.
std::string extensionOf(std::string_view documentPath);
// The path with its last three letters replaced.
std::string withExtension(std::string_view documentPath, std::string_view extension);

// The document type code by the ending, in any case: par 1, dft 2, asm 3, psm 4, pwd 6; 0 for another one.
int fileTypeCode(std::string_view documentPath);

} // namespace quelvarn

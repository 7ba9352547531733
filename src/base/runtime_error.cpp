#include "base/runtime_error.h"

#include <utility>

namespace quelvarn {

RuntimeError::RuntimeError(int number, std::string source, const std::string& description)
    : std::runtime_error(description), number_(number), source_(std::move(source))
{}

} // namespace quelvarn

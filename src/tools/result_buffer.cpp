#include "tools/result_buffer.h"

#include "tools/console.h"

#include <cerrno>
#include <fmt/format.h>
#include <system_error>

namespace quelvarn::tools {

namespace {

constexpr std::size_t IN_MEMORY = 4U << 20; // bytes

[[noreturn]] void reportFile(std::string_view what)
{
    throw toolFault(fmt::format("Die Zwischendatei des Ergebnisses lässt sich nicht {}: {}", what,
                                std::generic_category().message(errno)));
}

} // namespace

void ResultBuffer::append(std::string_view bytes)
{
    memory_ += bytes;
    if (memory_.size() >= IN_MEMORY)
        spill();
}

void ResultBuffer::spill()
{
    if (!file_)
        file_ = makeTemporaryFile();
    if (std::fwrite(memory_.data(), 1, memory_.size(), file_.get()) != memory_.size() || std::fflush(file_.get()) != 0)
        reportFile("schreiben");
    memory_.clear();
}

void ResultBuffer::writeTo(std::ostream& target)
{
    if (file_) {
        spill();
        std::rewind(file_.get());
        memory_.resize(IN_MEMORY);
        while (target.good()) {
            const std::size_t count = std::fread(memory_.data(), 1, memory_.size(), file_.get());
            if (count == 0)
                break;
            target.write(memory_.data(), static_cast<std::streamsize>(count));
        }
        if (std::ferror(file_.get()) != 0)
            reportFile("lesen");
    } else {
        target.write(memory_.data(), static_cast<std::streamsize>(memory_.size()));
    }
}

} // namespace quelvarn::tools

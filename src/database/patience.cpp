#include "database/patience.h"

#include <fmt/format.h>

namespace quelvarn {

std::string waitingText(WaitReason reason, std::chrono::milliseconds waited)
{
    const std::string_view sentence = reason == WaitReason::Lock
                                          ? "Die Datenbank ist durch ein anderes Programm gesperrt."
                                          : "Der Datenbankserver hat noch nicht geantwortet.";
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(waited).count();
    return fmt::format("{}\nEs wird gewartet ... ({} Sek.)", sentence, seconds);
}

} // namespace quelvarn

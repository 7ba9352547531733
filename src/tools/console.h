#pragma once

#include "base/runtime_error.h"
#include "tools/progress_painter.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace quelvarn::tools {

// Where a command writes: results to `aus`, messages to `meldungen`.
struct Konsole
{
    std::ostream& aus;
    std::ostream& meldungen;
    bool terminal = false; // `meldungen` is watched by a person: progress may be shown.
};

Laufzeitfehler werkzeugfehler(const std::string& beschreibung);

// From here on Ctrl+C and a request to end do not stop the process at once: the next pruefeAbbruch throws, so
// that what was begun is taken back.
void fangeAbbruch();
void pruefeAbbruch();

// One line that rewrites itself while long work runs; shows nothing where no terminal is.
class Verlaufsanzeige
{
public:
    explicit Verlaufsanzeige(Konsole& konsole) : konsole_(konsole) {}

    // Cheap enough to be called for each row. Throws when the work is to be given up.
    void melde(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt = 0);
    // For a step that takes long by itself: shown at once.
    void schritt(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt);

private:
    void zeige(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt);

    Konsole& konsole_;
    std::uint64_t aufrufe_ = 0;
    std::chrono::steady_clock::time_point naechste_;
    std::optional<ProgressPainter> painter_;
};

} // namespace quelvarn::tools

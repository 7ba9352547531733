#include "session/operations.h"

#include "session/error_report.h"

#include <utility>

namespace quelvarn {

Operations::Operations(const Ports& outside)
    : boxes_(*this, outside.boxes),
      progress_(*this, outside.progress), ports_{boxes_,           outside.clock,     outside.environment,
                                                 outside.files,    outside.drives,    outside.printers,
                                                 outside.programs, outside.clipboard, outside.defaultApplication,
                                                 progress_}
{}

bool Operations::perform(Part part, std::string_view title, std::string_view text,
                         const std::function<void()>& operation)
{
    return run(part, [&] { return guarded(boxes_, title, text, operation); });
}

bool Operations::perform(Part part, std::string_view title, const std::function<std::string()>& text,
                         const std::function<void()>& operation)
{
    return run(part, [&] { return guarded(boxes_, title, text, operation); });
}

bool Operations::report(Part part, const std::function<void()>& operation)
{
    return run(part, [&] { return report(operation); });
}

bool Operations::report(const std::function<void()>& operation)
{
    try {
        operation();
        return true;
    } catch (const RuntimeError& fault) {
        Fehlermeldung(boxes_, fault);
        return false;
    }
}

// What a box in between has shown may have changed again behind it.
bool Operations::run(Part part, const std::function<bool()>& guarded)
{
    ++running_;
    bool done = false;
    try {
        changed(part);
        done = guarded();
        changed(part);
    } catch (...) {
        --running_;
        throw;
    }
    if (--running_ == 0)
        showChanges();
    return done;
}

void Operations::changed(Part part)
{
    if (part == Part::Rows) {
        if (show)
            show(Parts().set(static_cast<std::size_t>(Part::Rows)));
        return;
    }
    changed_.set(static_cast<std::size_t>(part));
    if (running_ == 0)
        showChanges();
}

void Operations::showChanges()
{
    const Parts parts = std::exchange(changed_, {});
    if (show && parts.any())
        show(parts);
}

Answer Operations::ShowingBoxes::show(const Box& box)
{
    operations_.showChanges();
    return outside_.show(box);
}

void Operations::ShowingProgress::begin(std::string_view text)
{
    operations_.showChanges();
    outside_.begin(text);
}

} // namespace quelvarn

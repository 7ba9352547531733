#pragma once

#include "platform/boxes.h"
#include "platform/ports.h"
#include "platform/progress.h"

#include <bitset>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// What of the window changed. Rows are those of the tables; Document is all of the document page around them.
enum class Part : unsigned { Frame, StartPage, FilterPage, Rows, Document, LeftBar, TopBar };
using Parts = std::bitset<7>;
inline bool contains(const Parts& parts, Part part)
{
    return parts.test(static_cast<std::size_t>(part));
}

// Runs what a person starts, and tells the window once what changed by it: when all of it has run, and before a person
// looks at a box or at the progress of long work. Changed rows are told at once: a grid must never draw rows that are
// gone.
class Operations
{
public:
    explicit Operations(const Ports& outside);
    Operations(const Operations&) = delete;
    Operations& operator=(const Operations&) = delete;

    // The doors to the outside, as whatever runs here must take them.
    Ports& ports() { return ports_; }

    // A fault shows this warning box, then the common report. Every exception but ProgramExit ends here. True when
    // the operation ran to its end. The part counts as changed, whatever happens.
    bool perform(Part part, std::string_view title, std::string_view text, const std::function<void()>& operation);
    bool perform(Part part, std::string_view title, const std::function<std::string()>& text,
                 const std::function<void()>& operation);
    // The same for what has no box of its own: a fault goes to the common report.
    bool report(Part part, const std::function<void()>& operation);
    bool report(const std::function<void()>& operation);
    void changed(Part part);

    std::function<void(const Parts&)> show;

private:
    class ShowingBoxes final : public Boxes
    {
    public:
        ShowingBoxes(Operations& operations, Boxes& outside) : operations_(operations), outside_(outside) {}
        Answer show(const Box& box) override;

    private:
        Operations& operations_;
        Boxes& outside_;
    };
    class ShowingProgress final : public ProgressDisplay
    {
    public:
        ShowingProgress(Operations& operations, ProgressDisplay& outside) : operations_(operations), outside_(outside)
        {}
        void begin(std::string_view text) override;
        bool step(std::size_t done, std::size_t total) override { return outside_.step(done, total); }
        void end() override { outside_.end(); }

    private:
        Operations& operations_;
        ProgressDisplay& outside_;
    };

    bool run(Part part, const std::function<bool()>& guarded);
    void showChanges();

    ShowingBoxes boxes_;
    ShowingProgress progress_;
    Ports ports_;
    Parts changed_;
    int running_ = 0; // Operations within operations.
};

} // namespace quelvarn

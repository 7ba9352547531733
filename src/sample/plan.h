#pragma once

#include "base/date_time.h"
#include "database/document_types.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quelvarn::sample {

struct Assembly;
struct Machine;

enum class Section : std::uint8_t { Conveyor, Gear, Frame, Standard, Bought, Fixture, Template };

// The five file types and what lies in the special tables; the numbers are those of DOCUMENT_TYPES.
enum class Tab : std::uint8_t { Part, SheetM, Assemb, Draft, Weld, STbl1, STbl2, STbl3 };

constexpr std::uint32_t NONE = 0xFFFFFFFF;
// More than a send order takes from one drawing.
constexpr std::size_t MODELS_OF_OVERVIEW = 103;

// A numbered item of the register, with all its revisions. Everything else about it follows from these few
// bytes and the start number, so a million documents need little memory.
struct Part
{
    std::uint32_t project = 0;   // Of its kind; for standard and bought parts the place in their catalog.
    std::uint32_t parent = NONE; // The assembly it belongs to; for a drawing or weldment its model.
    std::uint16_t number = 0;    // Inside the project: 321 is the first part of sub-assembly 320.
    std::uint8_t design = 0;     // Which one, in its list of the vocabulary.
    Section section = Section::Conveyor;
    Tab tab = Tab::Part;
    std::uint8_t revisions = 1;
};

// The items of a register, so many that there is exactly the wanted number of documents (revisions).
// Models stand before their drawings, assemblies before their parts.
class Plan
{
public:
    Plan(std::uint64_t documents, std::uint64_t start);

    const std::vector<Part>& parts() const { return parts_; }
    const Part& part(std::uint32_t number) const { return parts_[number]; }
    std::uint64_t start() const { return start_; }
    const Machine& machine(Section section, std::uint32_t project) const;
    // Items of the special tables, and the gearboxes that conveyors are driven by.
    const std::vector<std::uint32_t>& standardParts() const { return standardParts_; }
    const std::vector<std::uint32_t>& boughtParts() const { return boughtParts_; }
    const std::vector<std::uint32_t>& gear() const { return gear_; }

private:
    bool full() const { return free_ == 0; }
    std::uint32_t append(Part part);
    void planeTemplates(std::uint64_t count);
    void planStandardParts(std::uint64_t count);
    void planeBoughtParts(std::uint64_t count);
    void planeFixtures(std::uint64_t count);
    void planeProject(Section section, std::uint32_t project);
    void planeSubassembly(const Part& group, std::uint32_t parent, int number, const Assembly& drawingTemplate);
    std::uint32_t planeModel(Part part, std::uint32_t withDrawing);
    void planeDrawing(std::uint32_t model, std::uint32_t probability);
    std::uint8_t rollRevisions(std::uint32_t number) const;

    std::uint64_t start_;
    std::uint64_t free_; // Documents still wanted.
    std::vector<Part> parts_;
    std::vector<std::uint32_t> standardParts_;
    std::vector<std::uint32_t> boughtParts_;
    std::vector<std::uint32_t> gear_;
};

// What the catalog of standard parts holds, and its parts by number.
struct StandardPart
{
    std::size_t series = 0;
    std::string_view size;
    std::string_view length;
    std::string_view variant;
    bool firstVariant = true;
};
std::uint64_t standardPartCount();
StandardPart standardPart(std::uint64_t number);

} // namespace quelvarn::sample

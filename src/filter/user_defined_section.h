#pragma once

#include "filter/filter_context.h"
#include "filter/property_section.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Tab 2 of the filter page: user-defined properties, and at most two of Autor, Bearbeiter, Material, Projekt.
class UserDefinedSection
{
public:
    explicit UserDefinedSection(FilterContext& context) : context_(context) {}

    // --- operations ---
    void nameChosen(std::string_view name);                 // DLstBenutzDefName
    void valueChosen(std::string_view value);               // DLstBenutzDefWert: takes name and value as a step
    void additionChosen(int index, std::string_view value); // CbEigenBenutzDef(0) to (3)
    void setReceiver(bool set);                             // ChReceiver: receivers in place of their codes

    // --- mechanisms of the page; faults pass through ---
    bool exists() const; // The type has a table of user-defined properties.
    // Names and the four additional lists; forgets what was chosen. Additional lists that were given up stay empty.
    void fillLists();
    void unlock();
    void lock(); // A saved filter with additional values: the properties are locked.

    // --- state ---
    const ValueList& names() const { return names_; } // LblAnzEigenBenutzDef
    const std::string& name() const { return name_; } // LblNaemWert
    const ValueList& values() const { return values_; }
    const ValueList& addition(int index) const { return addition_[static_cast<std::size_t>(index)]; }
    bool ChReceiver() const { return ChReceiver_; }
    bool SperreBenutzDef() const { return SperreBenutzDef_; } // True when selection is allowed.

private:
    void fillValues();
    void takeStep(std::string_view value);
    std::string label(int addition) const;

    FilterContext& context_;
    ValueList names_, values_;
    std::vector<std::string> addressCodes_; // What stands in the table for each of values_.
    std::array<ValueList, ADDITIONAL_VALUE_COUNT> addition_;
    std::string name_;
    bool ChReceiver_ = false;
    bool SperreBenutzDef_ = true;
};

} // namespace quelvarn

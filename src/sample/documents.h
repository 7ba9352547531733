#pragma once

#include "database/value.h"
#include "sample/plan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sample {

struct Design;
class Random;

// The last day of the sample register's life: nothing in it is younger.
DateTime keyDate();

// Everything that a document (an item and one of its revisions) is called and has. The same question gives the
// same answer, whichever table asks it.
class Documents
{
public:
    explicit Documents(const Plan& plan) : plan_(plan) {}
    const Plan& plan() const { return plan_; }

    std::string documentName(std::uint32_t part) const;
    std::string revisionName(std::uint32_t part, int revision) const;
    std::string fileName(std::uint32_t part, int revision) const;
    std::string filename(std::uint32_t part, int revision) const;
    std::string_view extension(std::uint32_t part) const;

    int status(std::uint32_t part, int revision) const;
    std::string project(std::uint32_t part) const;
    Value author(std::uint32_t part) const;
    Value editor(std::uint32_t part, int revision) const;
    Value material(std::uint32_t part) const;
    std::string title(std::uint32_t part) const;
    DateTime created(std::uint32_t part, int revision) const;
    DateTime changed(std::uint32_t part, int revision) const;

    // A row of its document table, cells in the order of the columns.
    void row(std::uint32_t part, int revision, std::vector<Value>& values) const;

    // The item that a drawing shows; any other item is its own.
    std::uint32_t model(std::uint32_t part) const;

private:
    std::string folder(const Part& part) const;
    std::string stemName(const Part& part) const;
    const Design* findDesign(const Part& part) const;
    std::string_view groupName(const Part& part) const;
    Value topic(const Part& part) const;
    std::string_view category(const Part& part, Random& random) const;
    void appendFeatures(const Part& part, Random& random, std::vector<Value>& values) const;
    void appendMainValues(const Part& part, Random& random, std::vector<Value>& values) const;

    const Plan& plan_;
};

} // namespace quelvarn::sample

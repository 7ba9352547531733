#pragma once

#include "database/value.h"
#include "sample/plan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sample {

// The last day of the sample register's life: nothing in it is younger.
DateTime keyDate();

// What a document (an item and one of its revisions) is called, where it lies, and who made it when. The same question
// gives the same answer, whichever table asks it.
class DocumentNames
{
public:
    explicit DocumentNames(const Plan& plan) : plan_(plan) {}
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
    DateTime created(std::uint32_t part, int revision) const;
    DateTime changed(std::uint32_t part, int revision) const;

    // The item that a drawing shows; any other item is its own.
    std::uint32_t model(std::uint32_t part) const;

protected:
    std::string_view groupName(const Part& part) const;

    const Plan& plan_;

private:
    std::string folder(const Part& part) const;
    std::string stemName(const Part& part) const;
};

} // namespace quelvarn::sample

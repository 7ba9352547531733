#include "platform/linux/printers.h"

#ifdef QUELVARN_CUPS
#include <algorithm>
#include <charconv>
#include <cups/cups.h>
#include <span>
#include <string_view>
#endif

namespace quelvarn {

#ifdef QUELVARN_CUPS
namespace {

struct Paper
{
    std::string_view name;
    int code;
};

// Papers that have a code of their own; each name goes on with its size.
constexpr Paper papers[] = {
    {"iso_a4", 9}, {"iso_a3", 8}, {"iso_a5", 11}, {"iso_a2", 66}, {"na_letter", 1}, {"na_legal", 5},
    {"A4", 9},     {"A3", 8},     {"A5", 11},     {"A2", 66},     {"Letter", 1},    {"Legal", 5},
};
constexpr int notNamed = 256;

// The queues at the time of the question.
class Queues
{
public:
    Queues() : count_(cupsGetDests(&first_)) {}
    ~Queues() { cupsFreeDests(count_, first_); }
    Queues(const Queues&) = delete;
    Queues& operator=(const Queues&) = delete;

    std::span<const cups_dest_t> all() const { return {first_, static_cast<std::size_t>(count_)}; }

private:
    cups_dest_t* first_ = nullptr;
    int count_;
};

std::string_view optionOf(const cups_dest_t& queue, const char* name)
{
    const char* value = cupsGetOption(name, queue.num_options, queue.options);
    return value ? value : "";
}

int numberOr(std::string_view text, int otherwise)
{
    int number = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

int paperCode(std::string_view medium)
{
    for (const Paper& paper : papers) {
        const std::string_view rest = medium.substr(std::min(paper.name.size(), medium.size()));
        if (medium.starts_with(paper.name) && (rest.empty() || rest.front() == '_' || rest.front() == '.'))
            return paper.code;
    }
    return notNamed;
}

DefaultPrinter settingsOf(const cups_dest_t& queue)
{
    DefaultPrinter result;
    result.name = queue.name;
    result.paperCode = paperCode(optionOf(queue, "media"));
    result.copies = numberOr(optionOf(queue, "copies"), 1);
    // 4 and 5 are the two ways across, 3 and 6 those upright.
    const int orientation = numberOr(optionOf(queue, "orientation-requested"), 3);
    result.orientation = orientation == 4 || orientation == 5 ? 2 : 1;
    return result;
}

} // namespace

std::vector<std::string> LinuxPrinters::names() const
{
    std::vector<std::string> result;
    const Queues queues;
    for (const cups_dest_t& queue : queues.all()) {
        if (!queue.instance)
            result.emplace_back(queue.name);
    }
    return result;
}

// Without a chosen one the first queue stands in, as in other programs' print dialogs.
std::optional<DefaultPrinter> LinuxPrinters::standard() const
{
    const Queues queues;
    if (queues.all().empty())
        return std::nullopt;
    for (const cups_dest_t& queue : queues.all()) {
        if (queue.is_default)
            return settingsOf(queue);
    }
    return settingsOf(queues.all().front());
}

#else

std::vector<std::string> LinuxPrinters::names() const
{
    return {};
}

std::optional<DefaultPrinter> LinuxPrinters::standard() const
{
    return std::nullopt;
}

#endif

} // namespace quelvarn

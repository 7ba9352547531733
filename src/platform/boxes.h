#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

enum class Icon { None, Information, Warning, Question, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct Box
{
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    bool operator==(const Box&) const = default;
};

// Every box that a user sees goes through here. Returns when he has answered.
class Boxes
{
public:
    virtual ~Boxes() = default;
    virtual Answer show(const Box& box) = 0;

    void tell(std::string_view title, std::string_view text);
    void information(std::string_view title, std::string_view text);
    void warn(std::string_view title, std::string_view text);
    // True for Yes.
    bool ask(std::string_view title, std::string_view text);
};

} // namespace quelvarn

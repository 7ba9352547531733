#include "platform/boxes.h"

namespace quelvarn {

void Boxes::tell(std::string_view title, std::string_view text)
{
    show({std::string(title), std::string(text), Icon::None, Buttons::Ok});
}

void Boxes::information(std::string_view title, std::string_view text)
{
    show({std::string(title), std::string(text), Icon::Information, Buttons::Ok});
}

void Boxes::warn(std::string_view title, std::string_view text)
{
    show({std::string(title), std::string(text), Icon::Warning, Buttons::Ok});
}

bool Boxes::ask(std::string_view title, std::string_view text)
{
    return show({std::string(title), std::string(text), Icon::Question, Buttons::YesNo}) == Answer::Yes;
}

} // namespace quelvarn

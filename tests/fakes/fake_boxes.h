#pragma once

#include "platform/boxes.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn {

// Answers boxes in place of a person. Each box must have been announced, by `expect` or `answer`:
// one that was not, or an announced one that never came, fails the test.
class FakeBoxes : public Boxes
{
public:
    ~FakeBoxes() override
    {
        for (const Announcement& open : announced_)
            ADD_FAILURE() << "box did not come: " << open.title.value_or("(any)") << " / " << open.text.value_or("");
    }

    // The next box has this title and text, and gets this answer.
    void expect(std::string title, std::string text, Answer answer = Answer::Ok)
    {
        announced_.push_back({std::move(title), std::move(text), answer});
    }
    // The next box, whatever it says, gets this answer; `shown` tells what it said.
    void answer(Answer answer = Answer::Ok) { announced_.push_back({std::nullopt, std::nullopt, answer}); }
    // From now on boxes with only an OK button need no announcement.
    void allowHints() { hintsAllowed_ = true; }

    Answer show(const Box& box) override
    {
        shown.push_back(box);
        if (during)
            during();
        if (announced_.empty()) {
            if (!hintsAllowed_ || box.buttons != Buttons::Ok)
                ADD_FAILURE() << "unexpected box: " << box.title << "\n" << box.text;
            return Answer::Ok;
        }
        const Announcement next = announced_.front();
        announced_.pop_front();
        EXPECT_EQ(box.title, next.title.value_or(box.title));
        EXPECT_EQ(box.text, next.text.value_or(box.text));
        EXPECT_TRUE(hasButton(box.buttons, next.answer)) << "no such button: " << box.title;
        return next.answer;
    }

    const Box& last() const { return shown.at(shown.size() - 1); }

    std::vector<Box> shown;
    std::function<void()> during; // While a box is shown, the window behind it is drawn.

private:
    struct Announcement
    {
        std::optional<std::string> title;
        std::optional<std::string> text;
        Answer answer;
    };

    static bool hasButton(Buttons buttons, Answer answer)
    {
        switch (answer) {
        case Answer::Ok:
            return buttons == Buttons::Ok || buttons == Buttons::OkCancel;
        case Answer::Cancel:
            return buttons == Buttons::OkCancel || buttons == Buttons::YesNoCancel;
        case Answer::Yes:
        case Answer::No:
            return buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel;
        }
        return false;
    }

    std::deque<Announcement> announced_;
    bool hintsAllowed_ = false;
};

} // namespace quelvarn

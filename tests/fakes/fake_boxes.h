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

// Answers boxes in place of a person. Each box must have been announced, by `erwarte` or `antworte`:
// one that was not, or an announced one that never came, fails the test.
class FakeMeldungen : public Meldungen
{
public:
    ~FakeMeldungen() override
    {
        for (const Ankuendigung& offen : angekuendigt_)
            ADD_FAILURE() << "box did not come: " << offen.titel.value_or("(any)") << " / " << offen.text.value_or("");
    }

    // The next box has this title and text, and gets this answer.
    void erwarte(std::string titel, std::string text, Antwort antwort = Antwort::Ok)
    {
        angekuendigt_.push_back({std::move(titel), std::move(text), antwort});
    }
    // The next box, whatever it says, gets this answer; `gezeigt` tells what it said.
    void antworte(Antwort antwort = Antwort::Ok) { angekuendigt_.push_back({std::nullopt, std::nullopt, antwort}); }
    // From now on boxes with only an OK button need no announcement.
    void erlaubeHinweise() { hinweiseErlaubt_ = true; }

    Antwort zeige(const Meldung& meldung) override
    {
        gezeigt.push_back(meldung);
        if (during)
            during();
        if (angekuendigt_.empty()) {
            if (!hinweiseErlaubt_ || meldung.knoepfe != Knoepfe::Ok)
                ADD_FAILURE() << "unexpected box: " << meldung.titel << "\n" << meldung.text;
            return Antwort::Ok;
        }
        const Ankuendigung naechste = angekuendigt_.front();
        angekuendigt_.pop_front();
        EXPECT_EQ(meldung.titel, naechste.titel.value_or(meldung.titel));
        EXPECT_EQ(meldung.text, naechste.text.value_or(meldung.text));
        EXPECT_TRUE(hatKnopf(meldung.knoepfe, naechste.antwort)) << "no such button: " << meldung.titel;
        return naechste.antwort;
    }

    const Meldung& letzte() const { return gezeigt.at(gezeigt.size() - 1); }

    std::vector<Meldung> gezeigt;
    std::function<void()> during; // While a box is shown, the window behind it is drawn.

private:
    struct Ankuendigung
    {
        std::optional<std::string> titel;
        std::optional<std::string> text;
        Antwort antwort;
    };

    static bool hatKnopf(Knoepfe knoepfe, Antwort antwort)
    {
        switch (antwort) {
        case Antwort::Ok:
            return knoepfe == Knoepfe::Ok || knoepfe == Knoepfe::OkAbbrechen;
        case Antwort::Abbrechen:
            return knoepfe == Knoepfe::OkAbbrechen || knoepfe == Knoepfe::JaNeinAbbrechen;
        case Antwort::Ja:
        case Antwort::Nein:
            return knoepfe == Knoepfe::JaNein || knoepfe == Knoepfe::JaNeinAbbrechen;
        }
        return false;
    }

    std::deque<Ankuendigung> angekuendigt_;
    bool hinweiseErlaubt_ = false;
};

} // namespace quelvarn

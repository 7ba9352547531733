#pragma once

#include "base/collation.h"
#include "base/text.h"
#include "base/windows_path.h"
#include "platform/clock.h"
#include "platform/file_error.h"
#include "platform/files.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace quelvarn {

// A file system in memory with the drives C: and W:, blind to case. `gesperrt` holds folded paths
// that nobody may write, delete or create.
class FakeDateien : public Dateien
{
public:
    explicit FakeDateien(const Uhr& uhr) : uhr_(uhr)
    {
        lege("C:", Eintrag{true});
        lege("W:", Eintrag{true});
    }

    // A file with all its folders.
    void legeAn(std::string_view pfad, std::string_view inhalt = "")
    {
        for (std::size_t slash = pfad.find('\\', 2); slash != std::string_view::npos;
             slash = pfad.find('\\', slash + 1))
            eintraege_.try_emplace(schluessel(pfad.substr(0, slash)),
                                   Eintrag{true, std::string(pfad.substr(0, slash))});
        schreibe(pfad, inhalt);
    }
    // The same for a real file, for those that open it by its system path.
    void verbinde(std::string_view pfad, const std::filesystem::path& echt)
    {
        legeAn(pfad);
        eintraege_.at(schluessel(pfad)).echt = echt;
    }
    void sperre(std::string_view pfad) { gesperrt.insert(schluessel(pfad)); }
    // For a test to set times or the hidden attribute.
    Dateiattribute& aendereAttribute(std::string_view pfad) { return eintrag(pfad).attribute; }

    bool dateiVorhanden(std::string_view pfad) const override
    {
        const Eintrag* gefunden = suche(pfad);
        return gefunden && !gefunden->ordner;
    }
    bool ordnerVorhanden(std::string_view pfad) const override
    {
        const Eintrag* gefunden = suche(pfad);
        return gefunden && gefunden->ordner;
    }
    void ordnerAnlegen(std::string_view pfad) override
    {
        pruefeSchreiben(pfad);
        if (suche(pfad))
            throw dateifehler(std::errc::file_exists, pfad);
        lege(pfad, Eintrag{true});
    }
    std::vector<Ordnereintrag> inhalt(std::string_view ordner) const override
    {
        if (!ordnerVorhanden(ordner))
            throw dateifehler(std::errc::no_such_file_or_directory, ordner);
        std::vector<Ordnereintrag> namen;
        for (const auto& [key, e] : eintraege_) {
            if (schluessel(Ordnername(e.pfad)) == schluessel(ordner))
                namen.push_back({DateiName(e.pfad), e.ordner});
        }
        std::sort(namen.begin(), namen.end(),
                  [](const auto& a, const auto& b) { return compareText(a.name, b.name) < 0; });
        return namen;
    }

    std::optional<Dateiattribute> attribute(std::string_view pfad) const override
    {
        const Eintrag* gefunden = suche(pfad);
        if (!gefunden || gefunden->ordner)
            return std::nullopt;
        Dateiattribute result = gefunden->attribute;
        result.groesse = static_cast<std::int64_t>(gefunden->inhalt.size());
        return result;
    }
    void setzeSchreibschutz(std::string_view pfad, bool gesetzt) override
    {
        eintrag(pfad).attribute.schreibgeschuetzt = gesetzt;
    }
    void setzeArchiv(std::string_view pfad, bool gesetzt) override { eintrag(pfad).attribute.archiv = gesetzt; }

    std::string lese(std::string_view pfad) const override
    {
        if (!dateiVorhanden(pfad))
            throw dateifehler(std::errc::no_such_file_or_directory, pfad);
        return suche(pfad)->inhalt;
    }
    void schreibe(std::string_view pfad, std::string_view inhalt) override
    {
        pruefeSchreiben(pfad);
        const Eintrag* alt = suche(pfad);
        if (alt && (alt->ordner || alt->attribute.schreibgeschuetzt))
            throw dateifehler(std::errc::permission_denied, pfad);
        Eintrag neu = alt ? *alt : Eintrag{};
        if (!alt)
            neu.attribute.erstellt = neu.attribute.zugriff = uhr_.jetzt();
        neu.attribute.geaendert = uhr_.jetzt();
        neu.inhalt = inhalt;
        lege(pfad, std::move(neu));
    }
    void kopiere(std::string_view von, std::string_view nach) override
    {
        schreibe(nach, lese(von));
        eintrag(nach).attribute.geaendert = eintrag(von).attribute.geaendert;
    }
    void loesche(std::string_view pfad) override
    {
        pruefeSchreiben(pfad);
        if (eintrag(pfad).ordner || eintrag(pfad).attribute.schreibgeschuetzt)
            throw dateifehler(std::errc::permission_denied, pfad);
        eintraege_.erase(schluessel(pfad));
    }

    std::filesystem::path systempfad(std::string_view pfad) const override
    {
        const Eintrag* gefunden = suche(pfad);
        return gefunden && !gefunden->echt.empty() ? gefunden->echt : std::filesystem::path("/nicht/vorhanden");
    }

    std::set<std::string> gesperrt;

private:
    struct Eintrag
    {
        bool ordner = false;
        std::string pfad = {};
        std::string inhalt = {};
        Dateiattribute attribute = {};
        std::filesystem::path echt = {};
    };

    static std::string schluessel(std::string_view pfad)
    {
        std::string key = foldCase(replaceAll(pfad, "/", "\\"));
        while (key.ends_with('\\'))
            key.pop_back();
        return key;
    }
    const Eintrag* suche(std::string_view pfad) const
    {
        const auto found = eintraege_.find(schluessel(pfad));
        return found == eintraege_.end() ? nullptr : &found->second;
    }
    Eintrag& eintrag(std::string_view pfad)
    {
        const auto found = eintraege_.find(schluessel(pfad));
        if (found == eintraege_.end())
            throw dateifehler(std::errc::no_such_file_or_directory, pfad);
        return found->second;
    }
    void lege(std::string_view pfad, Eintrag eintrag)
    {
        if (eintrag.pfad.empty())
            eintrag.pfad = pfad;
        eintraege_[schluessel(pfad)] = std::move(eintrag);
    }
    void pruefeSchreiben(std::string_view pfad) const
    {
        if (gesperrt.contains(schluessel(pfad)))
            throw dateifehler(std::errc::permission_denied, pfad);
        if (!ordnerVorhanden(Ordnername(pfad)))
            throw dateifehler(std::errc::no_such_file_or_directory, pfad);
    }

    const Uhr& uhr_;
    std::map<std::string, Eintrag> eintraege_;
};

} // namespace quelvarn

#pragma once

#include "database/connection.h"
#include "database/row_sink.h"
#include "tools/console.h"
#include "tools/draft_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// A register in the making. Whoever looks at the target sees what was there before, until schliesseAb has made
// everything visible at once; without it nothing is left behind. A SQLite file grows under another name beside
// its target, a PostgreSQL database gets one transaction.
class NeuesRegister : public Zeilensenke
{
public:
    NeuesRegister(std::string_view ziel, Vorhandenes vorhandenes, Konsole& konsole);
    ~NeuesRegister() override;

    void tabelle(const Tabellenschema& tabelle) override;
    void zeile(std::span<const Value> werte) override;
    // Builds the indexes, which is quicker than to keep them while rows come.
    void schliesseAb();

    std::uint64_t zeilen() const { return zeilen_; }

private:
    void bereiteDatenbankVor(std::string_view ziel, Vorhandenes vorhandenes);
    void beendeTabelle();
    Engine& engine() const { return *engine_; }

    std::optional<DraftFile> entwurf_; // The file is removed after the engine has let go of it.
    Connection verbindung_;
    std::shared_ptr<Engine> datei_;
    Engine* engine_ = nullptr;
    bool offen_ = false;
    std::vector<Tabellenschema> tabellen_;
    std::unique_ptr<Engine::Massenschreiber> schreiber_;
    std::uint64_t zeilen_ = 0;
    Verlaufsanzeige anzeige_;
};

// True for an address and for a small text file that holds one.
bool istServerziel(std::string_view ziel);

} // namespace quelvarn::tools

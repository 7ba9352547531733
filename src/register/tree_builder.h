#pragma once

#include "platform/ports.h"
#include "register/info_pages.h"
#include "register/table_page.h"

#include <string>
#include <string_view>

namespace quelvarn {

struct DokuTyp;
struct SessionState;

// Builds the tree of a page's record, node by node: a fault leaves it as far as it was built.
class BaumBauer
{
public:
    BaumBauer(Tabellenseite& seite, const DokuTyp& typ, SessionState& session, const Ports& ports);

    // "Eigenschaften" with its first child.
    void eigenschaften();
    // All other nodes of the top level. Writes what they found into the record as well.
    void obersteEbene();
    // The further children of "Eigenschaften"; does nothing when they are there already.
    void KinderAufbauen();

private:
    void revision();
    void verwendung();
    bool fuegeVerwendungAn(InfoSeite seite, std::string_view schluessel);
    void zeichnung();
    void fuegeAn(std::string_view schluessel, std::string_view text);
    void fuegeKindAn(std::string_view text);

    Tabellenseite& seite_;
    const DokuTyp& typ_;
    SessionState& session_;
    const Ports& ports_;
    std::string pfad_; // Of the document, on a drive.
};

} // namespace quelvarn

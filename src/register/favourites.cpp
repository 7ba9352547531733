#include "register/favourites.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "documents/row_memory.h"
#include "platform/boxes.h"
#include "register/document_jump.h"
#include "register/favourite_rows.h"
#include "register/table_tabs.h"
#include "session/error_report.h"
#include "session/session_state.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {
namespace {

constexpr std::string_view TITEL = "Favoriten";

Favorit favoritVon(const Recordset& zeile)
{
    return {zeile.Text("DokuBezFavoriten"), zeile.Text("RevBezFavoriten")};
}

void fuegeAn(Recordset& zeilen, const Favorit& favorit, const std::string& filename)
{
    zeilen.AddNew();
    zeilen.setzeFeld("DokuBezFavoriten", favorit.DokuBez);
    zeilen.setzeFeld("RevBezFavoriten", favorit.RevBez);
    zeilen.setzeFeld("DateinameFavoriten", DateiName(filename));
    zeilen.setzeFeld("filenameFavoriten", filename);
    zeilen.Update();
}

Recordset neueListe()
{
    Recordset zeilen;
    for (const char* feld : {"DokuBezFavoriten", "RevBezFavoriten", "DateinameFavoriten", "filenameFavoriten"})
        zeilen.FeldAnhaengen(feld, FeldTyp::Text);
    zeilen.Open();
    return zeilen;
}

std::vector<Favorit> alle(const Recordset& zeilen)
{
    std::vector<Favorit> favoriten;
    for (std::size_t i = 0; i < zeilen.RecordCount(); ++i)
        favoriten.push_back(
            {alsText(zeilen.Zelle(i, "DokuBezFavoriten")), alsText(zeilen.Zelle(i, "RevBezFavoriten"))});
    return favoriten;
}

} // namespace

Favoriten::Favoriten(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs,
                     Dokumentsprung& jump)
    : session_(session), operations_(operations), ports_(operations.ports()), tables_(tables), tabs_(tabs), jump_(jump)
{
    tables_.follow(*this);
}

Favoriten::Liste& Favoriten::geladen(const DokuTyp& typ)
{
    Liste& liste = listen_[static_cast<std::size_t>(typ.tab)];
    if (!liste.FavoritenGeladen)
        FavoritLaden(typ, liste);
    return liste;
}

const DokuTyp& Favoriten::typ() const
{
    return DOKUTYPEN[static_cast<std::size_t>(tables_.tab())];
}

Favoriten::Liste& Favoriten::aktuelle()
{
    return listen_[static_cast<std::size_t>(tables_.tab())];
}

// Without their files the favourites stand all the same, and are read again next time.
void Favoriten::FavoritLaden(const DokuTyp& typ, Liste& liste)
{
    const std::vector<Favorit> favoriten = leseFavoriten(session_, typ);
    std::vector<std::string> dateien(favoriten.size());
    liste.FavoritenGeladen = gesichert(ports_.meldungen, "Modul: Ermitteln filename für DokuBez und RevBez",
                                       "Fehler beim Ermitteln filename für DokuBez und RevBez!",
                                       [&] { dateien = dateienVon(session_.database.Verbindung, typ, favoriten); });
    liste.zeilen = neueListe();
    for (std::size_t i = 0; i < favoriten.size(); ++i)
        fuegeAn(liste.zeilen, favoriten[i], dateien[i]);
    if (!liste.zeilen.leer())
        liste.zeilen.MoveFirst();
    ++fassung_;
}

void Favoriten::FavoritHinzufuegen(const std::string& DokuBez, const std::string& RevBez, std::string_view schluessel,
                                   const std::string& filename)
{
    const auto dokuTyp = std::ranges::find(DOKUTYPEN, schluessel, &DokuTyp::schluessel);
    assert(dokuTyp != DOKUTYPEN.end());
    const Favorit favorit{DokuBez, RevBez};
    Liste& liste = geladen(*dokuTyp);
    for (const Favorit& vorhanden : alle(liste.zeilen))
        if (derselbe(vorhanden, favorit))
            return;
    schreibeFavorit(session_, *dokuTyp, favorit);
    fuegeAn(liste.zeilen, favorit, filename);
    ++fassung_;
    operations_.changed(Part::TopBar);
}

void Favoriten::zuFavoriten()
{
    perform("Fehler beim Hinzufügen zu den Favoriten!", [&] {
        const DocumentTable& table = tables_.current();
        if (table.hasRows())
            FavoritHinzufuegen(table.record().DokuBez, table.record().RevBez, typ().schluessel,
                               table.record().filename);
    });
}

void Favoriten::FavoritenZeigen(bool an)
{
    zeigtFavoriten_ = false;
    verwaltung_ = false;
    perform("Fehler beim Anzeigen der Favoriten!", [&] {
        if (!an)
            return;
        geladen(typ());
        zeigtFavoriten_ = true;
    });
}

void Favoriten::FavoritAuswaehlen(std::size_t position)
{
    perform("Fehler beim Suchen des Favoriten!", [&] {
        if (stelleAuf(position))
            wechsleZuFavorit();
    });
}

void Favoriten::zeileGewechselt(std::size_t position)
{
    if (!verwaltung_)
        return FavoritAuswaehlen(position);
    stelleAuf(position);
    operations_.changed(Part::TopBar);
}

bool Favoriten::stelleAuf(std::size_t position)
{
    Recordset& zeilen = aktuelle().zeilen;
    if (!zeilen.offen() || position >= zeilen.RecordCount())
        return false;
    zeilen.setzeAbsolutePosition(position);
    return true;
}

void Favoriten::wechsleZuFavorit()
{
    const Recordset& zeile = aktuelle().zeilen;
    const Favorit favorit = favoritVon(zeile);
    const Merkzeile gesucht{favorit.DokuBez, favorit.RevBez, zeile.Text("filenameFavoriten")};
    if (tables_.current().isFiltered())
        jump_.frageNachFilter(typ(), HINWEIS_DOKUMENT);
    if (stelleAufDokument(tables_.current().visible(), gesucht))
        return tabs_.followRow();
    ports_.meldungen.warnung(TITEL, zeilen({
                                        "Datei ist in der Tabelle nicht vorhanden!",
                                        "es ist ein <Neuaufbau> erforderlich.",
                                        "oder",
                                        "Sie haben keine Zugriffsberechtigung!",
                                        "oder",
                                        "Tabelle ist gefiltert!",
                                    }));
}

void Favoriten::oeffneVerwaltung()
{
    verwaltung_ = zeigtFavoriten_;
    operations_.changed(Part::TopBar);
}

void Favoriten::verlasseVerwaltung()
{
    verwaltung_ = false;
    operations_.changed(Part::TopBar);
}

void Favoriten::FavoritLoeschen()
{
    perform("Fehler beim Löschen des Favoriten!", [&] {
        Recordset& zeilen = aktuelle().zeilen;
        if (!zeilen.offen() || zeilen.Eof() || zeilen.Bof())
            return;
        const std::array favorit{favoritVon(zeilen)};
        loescheFavoriten(session_, typ(), favorit);
        zeilen.Delete();
        if (zeilen.Eof() && !zeilen.leer())
            zeilen.MoveLast();
        ++fassung_;
    });
}

void Favoriten::AlleFavoritenLoeschen()
{
    perform("Fehler beim Löschen der Favoriten!", [&] {
        Recordset& zeilen = aktuelle().zeilen;
        if (!zeilen.offen())
            return;
        loescheFavoriten(session_, typ(), alle(zeilen));
        zeilen = neueListe();
        ++fassung_;
    });
}

void Favoriten::tabChanged()
{
    zeigtFavoriten_ = false;
    verwaltung_ = false;
}

void Favoriten::datenbankWechselt()
{
    listen_ = {};
    ++fassung_;
    tabChanged();
    operations_.changed(Part::TopBar);
}

const Recordset* Favoriten::liste() const
{
    const Recordset& zeilen = listen_[static_cast<std::size_t>(tables_.tab())].zeilen;
    return zeilen.offen() ? &zeilen : nullptr;
}

void Favoriten::perform(std::string_view text, const std::function<void()>& operation)
{
    operations_.perform(Part::TopBar, TITEL, text, operation);
}

} // namespace quelvarn

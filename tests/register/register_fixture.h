#pragma once

#include "database/create.h"
#include "database/engine.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_viewer.h"
#include "fakes/temp_folder.h"
#include "register/document_page.h"
#include "session/rights.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>

namespace quelvarn {

// A register in a temporary folder, and the document page over it.
class RegisterTest : public testing::Test
{
protected:
    RegisterTest()
    {
        engine_ = oeffneSqlite(ordner_ / "Werk.mdb", true);
        legeRegisterAn(*engine_);
        session_.Verbindung.Open(ordner_ / "Werk.mdb");
        session_.DatenbankPfad = "W:\\Werk.mdb";
        session_.DatenbankOk = true;
        session_.Anwender = "Mueller";
        siehtStati("012345");
    }

    void siehtStati(std::string_view stati)
    {
        session_.Sichtbar = {};
        for (const char status : stati)
            session_.Sichtbar[static_cast<std::size_t>(status - '0')] = 1;
        bildeStatusbereich(session_);
    }

    using Werte = std::initializer_list<std::pair<const char*, Value>>;
    Zeilenschluessel zeile(std::string_view tabelle, const Werte& werte)
    {
        std::vector<sql::Zuweisung> zuweisungen;
        for (const auto& [spalte, wert] : werte)
            zuweisungen.push_back({spalte, wert});
        return engine_->fuegeEin(tabelle, zuweisungen);
    }

    static std::string pfad(std::string_view name) { return "W:\\Teile\\" + std::string(name); }

    // A document whose file lies at W:\Teile\<DokuBez>_<RevBez>.<endung>.
    Zeilenschluessel dokument(int tab, const std::string& DokuBez, const std::string& RevBez = "0", int status = 3)
    {
        const std::string endung(DOKUTYPEN[tab].endung.empty() ? "par" : DOKUTYPEN[tab].endung);
        const std::string name = DokuBez + "_" + RevBez + "." + endung;
        return zeile(DOKUTYPEN[tab].tabelle, {{"DokuBez", DokuBez},
                                              {"RevBez", RevBez},
                                              {"Dateiname", name},
                                              {"filename", pfad(name)},
                                              {"Status", std::int64_t{status}}});
    }

    void zeigeDokument(int tab, const std::string& DokuBez, const std::string& RevBez = "0")
    {
        page_.tabGewaehlt(tab);
        page_.neuaufbauen(); // It may have been written just now.
        const Recordset& zeilen = page_.seite(tab).tabelle;
        std::size_t i = 0;
        while (i < zeilen.RecordCount() &&
               alsText(zeilen.Zelle(i, "DokuBez")) + alsText(zeilen.Zelle(i, "RevBez")) != DokuBez + RevBez)
            ++i;
        page_.zeileGewaehlt(i);
        ASSERT_EQ(session_.AktDoku.DokuBez, DokuBez);
    }

    // The grid's first two columns, from the top.
    std::string liste() const
    {
        const Recordset& zeilen = page_.aktuelleSeite().sichtbar();
        std::string text;
        for (std::size_t i = 0; zeilen.offen() && i < zeilen.RecordCount(); ++i)
            text += alsText(zeilen.Zelle(i, "DokuBez")) + "/" + alsText(zeilen.Zelle(i, "RevBez")) + " ";
        return text;
    }

    // Indented, a newer revision marked with "!".
    static std::string alsText(const std::vector<Knoten>& ebene, const std::string& einzug = "")
    {
        std::string text;
        for (const Knoten& knoten : ebene)
            text += einzug + knoten.text + (knoten.rot ? "!" : "") + "\n" + alsText(knoten.kinder, einzug + "  ");
        return text;
    }
    static std::string alsText(const Value& wert) { return quelvarn::alsText(wert); }
    std::string baum() const { return alsText(page_.aktuelleSeite().baum.wurzeln); }

    TempFolder ordner_;
    std::shared_ptr<Engine> engine_;
    FakePorts welt_;
    Ports ports_ = welt_.ports();
    SessionState session_;
    FakeBildschirm bildschirm_;
    DocumentPage page_{session_, ports_, bildschirm_.gezeigt};
};

} // namespace quelvarn

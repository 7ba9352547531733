#include "register/top_bar.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/document_jump.h"
#include "register/favourites.h"
#include "register/file_boxes.h"
#include "register/table_tabs.h"
#include "register/viewer_area.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/session_state.h"

#include <algorithm>
#include <iterator>

namespace quelvarn {
namespace {

// A line copied from a text brings its end along.
std::string withoutLineEnd(std::string text)
{
    for (int i = 0; i < 2 && (text.ends_with('\n') || text.ends_with('\r')); ++i)
        text.pop_back();
    return text;
}

std::string notFound(const std::string& documentPath, const DocumentType& type)
{
    std::string text = lines({
        documentPath,
        "Datei ist in der Tabelle nicht vorhanden!",
        "oder",
        "es ist ein <Neuaufbau> erforderlich.",
        "oder",
        "Sie haben keine Zugriffsberechtigung!",
    });
    if (type.key == "Part") // Standard parts have the same ending.
        text += "\n" + lines({"oder", "ist Bestandteil der Sondertabellen!", "(z.B. Normteile)"});
    return text;
}

} // namespace

struct TopBar::Command
{
    std::string_view key;
    void (TopBar::*act)(bool on);
    bool needsDocument = false;
};

const TopBar::Command TopBar::COMMANDS[] = {
    {"Neuaufbau", &TopBar::rebuild},
    {"Anschauen", &TopBar::openInViewer, true},
    {"Pfad in ZwSp", &TopBar::pathToClipboard, true},
    {"Pfad aus ZwSp", &TopBar::pathFromClipboard},
    {"Zu Favoriten", &TopBar::toFavourites, true},
    {"Favoriten....", &TopBar::showFavourites},
    {"In Benutzung..", &TopBar::inUse},
    {"Drucker....", &TopBar::printers},
};

void TopBar::click(std::string_view key, bool on)
{
    const auto* command = std::ranges::find(COMMANDS, key, &Command::key);
    if (command != std::end(COMMANDS))
        (this->*command->act)(on);
}

bool TopBar::usable(std::string_view key) const
{
    if (viewer_.isInFront())
        return key == "Anschauen";
    // Where use is not registered its box tells what to do; the list of users has no page yet.
    if (key == "In Benutzung..")
        return !use_.CheckInOutOn;
    const auto* command = std::ranges::find(COMMANDS, key, &Command::key);
    return command != std::end(COMMANDS) && (!command->needsDocument || tables_.current().hasRows());
}

bool TopBar::pressed(std::string_view key) const
{
    return (key == "Anschauen" && viewer_.isInFront()) || (key == "Favoriten...." && favourites_.showsFavourites());
}

void TopBar::rebuild(bool /*on*/)
{
    tabs_.rebuild();
}

void TopBar::openInViewer(bool on)
{
    viewer_.showDocument(on);
}

void TopBar::pathToClipboard(bool /*on*/)
{
    ports_.clipboard.setText(AktDoku_.filename);
}

void TopBar::pathFromClipboard(bool /*on*/)
{
    std::string documentPath = ports_.clipboard.text();
    if (documentPath.empty())
        return ports_.boxes.information("SE-Doku: Zwischenspeicher", "Der Zwischenspeicher ist leer!");
    operations_.perform(Part::TopBar, "SE-Doku: Zwischenspeicher", "Fehler beim Suchen des Dokuments!", [&] {
        documentPath = withoutLineEnd(std::move(documentPath));
        UniversalNachLaufwerk(documentPath, ports_);
        if (!ports_.files.fileExists(documentPath))
            tellFileMissing(ports_.boxes, documentPath);
        else if (DateiTyp(documentPath, ports_.boxes) != 0)
            switchTo(documentPath);
    });
}

void TopBar::switchTo(const std::string& documentPath)
{
    const DocumentType& type = *std::ranges::find(DOCUMENT_TYPES, extensionOf(documentPath), &DocumentType::extension);
    jump_.prepare(type, HINT_DOCUMENT);
    const bool found = jump_.searchFile(type, documentPath);
    tabs_.chooseTab(type.tab);
    if (!found)
        ports_.boxes.warn("Suchergebnis", notFound(documentPath, type));
}

void TopBar::toFavourites(bool /*on*/)
{
    favourites_.toFavourites();
}

void TopBar::showFavourites(bool on)
{
    favourites_.FavoritenZeigen(on);
}

// The list of users behind the button is there only when uses are registered.
void TopBar::inUse(bool /*on*/)
{
    if (!use_.CheckInOutOn)
        ports_.boxes.warn("CheckInOut der Benutzung",
                          lines({
                              "Die Benutzung wird nicht registriert, da 'CheckInOut' in der",
                              "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!",
                              "",
                              "Eintrag muss lauten:",
                              "Spalte 'Feld1' = '!QV_Ini'",
                              "Spalte 'Feld2' = 'OnOff'",
                              "Spalte 'Feld3' = 'CheckInOut'",
                              "Spalte 'Feld4' = '1'",
                              "",
                              "Nach Änderung muss Quelvarn neu gestartet werden.",
                          }));
}

void TopBar::printers(bool /*on*/)
{
    if (printerDialog)
        printerDialog();
}

} // namespace quelvarn

#include "register/document_jump.h"

#include "base/text.h"
#include "database/document_types.h"
#include "documents/row_memory.h"
#include "platform/boxes.h"
#include "register/relation_rows.h"
#include "register/table_tabs.h"
#include "session/local_settings.h"

#include <algorithm>

namespace quelvarn {

bool DocumentJump::ZuDokumentWechseln(const DocumentType& type, const std::string& filename)
{
    return jump(type, filename, {HINT_DOCUMENT, "Das Modell ist in der Tabelle nicht vorhanden!", false});
}

bool DocumentJump::ZeichnungZeigen(const std::string& filename)
{
    return jump(*std::ranges::find(DOCUMENT_TYPES, std::string_view("Draft"), &DocumentType::key), filename,
                {"Die zugehörige Zeichnung kann eventuell nicht angezeigt werden.",
                 "Die Zeichnung ist in der Tabelle nicht vorhanden!", true});
}

void DocumentJump::prepare(const DocumentType& type, std::string_view tell)
{
    const DocumentTable& table = tables_.opened(type.tab);
    // Intended: of a special table only the plain filter is asked about.
    if (table.state() == TableState::Filtered || (table.state() == TableState::FilterResult && type.specialTable == 0))
        askAfterFilter(type, tell);
}

void DocumentJump::askAfterFilter(const DocumentType& type, std::string_view tell)
{
    const std::string name = labels_.plural(type.tab);
    if (!ports_.boxes.ask(
            "Filterung der Tabelle '" + name + "' aufheben?",
            lines({"ACHTUNG: Tabelle '" + name + "' ist gefiltert!", tell, "Soll der Filter aufgehoben werden?"})))
        return;
    if (tables_.tab() != type.tab)
        tabs_.goTo(type.tab);
    tabs_.liftFilter(type.tab);
}

// Harvel may have met the file by the letter of a drive or by the share behind it.
bool DocumentJump::searchFile(const DocumentType& type, const std::string& filename)
{
    if (moveTo(type, filename))
        return true;
    std::string withLetter = filename;
    UniversalNachLaufwerk(withLetter, ports_);
    if (withLetter != filename)
        return moveTo(type, withLetter);
    const std::string withShare = pathOnShare(filename, ports_);
    return !withShare.empty() && moveTo(type, withShare);
}

bool DocumentJump::moveTo(const DocumentType& type, const std::string& filename)
{
    Recordset& rows = tables_[type.tab].visible();
    return std::ranges::any_of(documentsWithPath(connection_, type, filename), [&](const DocumentName& name) {
        return moveToFile(rows, {name.DokuBez, name.RevBez, filename, 0});
    });
}

bool DocumentJump::jump(const DocumentType& type, const std::string& filename, const Questions& questions)
{
    prepare(type, questions.tell);
    if (searchFile(type, filename)) {
        tabs_.goTo(type.tab);
        return true;
    }
    const Answer answer = ports_.boxes.show(
        {"Neuaufbau der Tabelle durchführen?", lines({questions.missing, "Soll ein 'Neuaufbau' durchgeführt werden?"}),
         Icon::Question, questions.cancellable ? Buttons::YesNoCancel : Buttons::YesNo});
    if (answer == Answer::Yes)
        return afterRebuild(type, filename);
    if (answer == Answer::No)
        tabs_.goTo(type.tab);
    return false;
}

bool DocumentJump::afterRebuild(const DocumentType& type, const std::string& filename)
{
    tabs_.reopen(type.tab);
    if (searchFile(type, filename)) {
        tabs_.ZeileAktualisieren(type.tab);
        return true;
    }
    ports_.boxes.warn("Suchergebnis", lines({
                                          "Datei ist in der Tabelle nicht vorhanden!",
                                          "es ist ein <Neuaufbau> erforderlich.",
                                          "oder",
                                          "Sie haben keine Zugriffsberechtigung.",
                                      }));
    return false;
}

} // namespace quelvarn

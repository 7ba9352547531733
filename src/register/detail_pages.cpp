#include "register/detail_pages.h"

#include "base/file_text.h"
#include "base/windows_path.h"
#include "database/document_types.h"
#include "filter/template_lookup.h"
#include "platform/files.h"
#include "register/detail_files.h"
#include "register/document_questions.h"
#include "register/user_defined_rows.h"
#include "session/error_report.h"
#include "session/session_state.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::array<std::string_view, 6> PICTURE_EXTENSIONS{"tif", "iff", "png", "jpg", "bmp", "gif"};
constexpr std::array<std::string_view, 4> TEXT_EXTENSIONS{"txt", "csv", "log", "ini"};
constexpr std::int64_t TEXT_LIMIT = 1 << 20; // bytes; more is for a program of its own.
constexpr std::string_view WITHOUT_VIEW = "Für diese Datei gibt es hier keine Ansicht.\n"
                                          "'Anschauen' öffnet sie in ihrer Anwendung.";

bool contains(const auto& extensions, std::string_view extension)
{
    return std::ranges::find(extensions, extension) != extensions.end();
}

} // namespace

void DetailPages::fill(InfoPageId page, const DocumentType& type, const DokuRecord& record)
{
    type_ = &type;
    record_ = record;
    lists_.erase(page); // After a fault the page is empty, not another document's.
    ++generation_;
    tiff_.clear(); // A picture behind another page would only cost memory.
    graphic_ = {};
    Connection& connection = session_.database.connection;
    switch (page) {
    case InfoPageId::Revisions:
        revisionFilter_ = RevisionFilter::Erstellt;
        lists_[page] = InfoRevision(connection, type.table, record.DokuBez, revisionFilter_);
        break;
    case InfoPageId::UserDefined:
        lists_[page] = userDefinedList(connection, type.tableUserDef, record);
        break;
    case InfoPageId::SendTo:
        lists_[page] = sendToList(connection, type.tableUserDef, record);
        break;
    case InfoPageId::StructureFeatures:
        fillStructureFeatures();
        break;
    case InfoPageId::ZusDoku:
        viewGraphic_ = false;
        LblInfoZusDoku_.clear();
        lists_[page] = additionalDocumentList(connection, ports_.files, record.filename);
        LblInfoZusDoku_ = additionalDocumentInfo(lists_[page]);
        break;
    case InfoPageId::Tiff:
        showTiff();
        break;
    default:
        break;
    }
}

void DetailPages::clear()
{
    lists_.clear();
    ++generation_;
    type_ = nullptr;
    record_ = {};
    LblPfadDateiVorlage_.clear();
    LblInfoZusDoku_.clear();
    viewGraphic_ = false;
    graphic_ = {};
    tiff_.clear();
}

void DetailPages::fillStructureFeatures()
{
    LblPfadDateiVorlage_.clear();
    LblPfadDateiVorlage_ = VorlageSuchen(session_.database.connection, templateBranch(record_));
    lists_[InfoPageId::StructureFeatures] =
        structureFeatureList(record_, session_.labels, !LblPfadDateiVorlage_.empty());
}

void DetailPages::setRevisionFilter(RevisionFilter view)
{
    operations_.perform(Part::Document, "Revision", "Fehler beim Lesen der Revisionen!", [&] {
        if (type_ == nullptr)
            return;
        revisionFilter_ = view;
        lists_.erase(InfoPageId::Revisions);
        ++generation_;
        lists_[InfoPageId::Revisions] = InfoRevision(session_.database.connection, type_->table, record_.DokuBez, view);
    });
}

void DetailPages::rowChosen(InfoPageId page, std::size_t position)
{
    operations_.perform(Part::Document, "Eigenschaften des Dokuments", "Fehler beim Anzeigen der Eigenschaften!", [&] {
        const auto list = lists_.find(page);
        if (list == lists_.end() || position >= list->second.RecordCount())
            return;
        list->second.setPosition(position);
        if (page == InfoPageId::ZusDoku)
            showAdditionalDocument();
    });
}

void DetailPages::setChViewGrafikZusDoku(bool on)
{
    operations_.perform(Part::Document, "Graphik anzeigen", "Fehler beim Anzeigen der Datei!", [&] {
        viewGraphic_ = on;
        showAdditionalDocument();
    });
}

void DetailPages::showAdditionalDocument()
{
    LblInfoZusDoku_ = additionalDocumentInfo(lists_[InfoPageId::ZusDoku]);
    graphic_ = {};
    const std::string documentPath = fieldOfRow(InfoPageId::ZusDoku, "ZusDokufilename");
    if (viewGraphic_ && !documentPath.empty() && existsOrBox(ports_, documentPath))
        graphic_ = pictureOf(documentPath);
}

FilePicture DetailPages::pictureOf(const std::string& documentPath) const
{
    const std::string extension = extensionOf(documentPath);
    if (contains(PICTURE_EXTENSIONS, extension))
        return {FilePicture::Kind::Picture, documentPath, {}};
    const auto attribute = ports_.files.attribute(documentPath);
    if (!contains(TEXT_EXTENSIONS, extension) || !attribute || attribute->size > TEXT_LIMIT)
        return {FilePicture::Kind::Text, {}, std::string(WITHOUT_VIEW)};
    return {FilePicture::Kind::Text, {}, decodeFileText(ports_.files.read(documentPath))};
}

void DetailPages::showTiff()
{
    std::string documentPath = findTiff(session_.database.connection, ports_.files, record_);
    if (documentPath.empty())
        documentPath = withExtension(record_.filename, "tif"); // It was there when the tree was built.
    if (existsOrBox(ports_, documentPath))
        tiff_ = documentPath;
}

const Recordset* DetailPages::list(InfoPageId page) const
{
    const auto list = lists_.find(page);
    return list == lists_.end() || !list->second.open() ? nullptr : &list->second;
}

std::string DetailPages::fieldOfRow(InfoPageId page, std::string_view field) const
{
    const Recordset* rows = list(page);
    return rows == nullptr || rows->bof() || rows->eof() ? std::string() : rows->Text(field);
}

std::filesystem::path DetailPages::systemPath(std::string_view documentPath) const
{
    return ports_.files.systemPath(documentPath);
}

void DetailPages::openOrder()
{
    operations_.perform(Part::Document, "Versendet an", "Fehler beim Öffnen der Datei!", [&] {
        if (const std::string order = fieldOfRow(InfoPageId::SendTo, "Orderfilename"); !order.empty())
            openOrderFile(ports_, session_.orders, session_.folders, order);
    });
}

void DetailPages::openAdditionalDocument()
{
    operations_.perform(Part::Document, "Zusätzl. Dokumente", "Fehler beim Öffnen der Datei!", [&] {
        const std::string document = fieldOfRow(InfoPageId::ZusDoku, "ZusDokufilename");
        if (!document.empty() && existsOrBox(ports_, document))
            openFile(ports_, "Zusätzl. Dokumente", document);
    });
}

void DetailPages::pictureNotLoaded(InfoPageId page)
{
    if (page == InfoPageId::Tiff)
        tiff_.clear();
    else
        graphic_ = {};
    tellPictureNotLoaded(ports_.boxes);
    operations_.changed(Part::Document);
}

} // namespace quelvarn

#pragma once

#include "documents/document_record.h"
#include "register/detail_lists.h"
#include "register/info_pages.h"
#include "session/operations.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace quelvarn {

struct DocumentType;
struct SessionState;

// A file to be shown on an information page. Pictures are drawn, texts are read, for others a hint stands.
struct FilePicture
{
    enum class Kind { None, Picture, Text };
    Kind kind = Kind::None;
    std::string file; // The picture's path, "" for none.
    std::string text;
    bool operator==(const FilePicture&) const = default;
};

// State and operations of the information pages that are read from the database. A page is filled when it comes up,
// and stays so until it comes up again.
class DetailPages
{
public:
    DetailPages(SessionState& session, Operations& operations)
        : session_(session), operations_(operations), ports_(operations.ports())
    {}

    // For a document of this type; does nothing for a page of another kind. Faults pass through.
    void fill(InfoPageId page, const DocumentType& type, const DokuRecord& record);
    void clear();

    // --- operations, one for each thing a person can do ---
    void setRevisionFilter(RevisionFilter view); // OpRevErstBearb
    void rowChosen(InfoPageId page, std::size_t position);
    void openOrder();                       // CmSendTo
    void setChViewGrafikZusDoku(bool on);   // ChViewGrafikZusDoku
    void openAdditionalDocument();          // CmStartZusDoku
    void pictureNotLoaded(InfoPageId page); // The picture on this page turned out to be none.

    // --- state, for the projection ---
    // nullptr for no rows; another `generation` means other rows.
    const Recordset* list(InfoPageId page) const;
    unsigned generation() const { return generation_; }
    RevisionFilter OpRevErstBearb() const { return revisionFilter_; }
    const std::string& LblPfadDateiVorlage() const { return LblPfadDateiVorlage_; }
    const std::string& LblInfoZusDoku() const { return LblInfoZusDoku_; }
    bool ChViewGrafikZusDoku() const { return viewGraphic_; }
    const FilePicture& graphicAdditionalDocument() const { return graphic_; }
    const std::string& tiff() const { return tiff_; } // "" when none is shown
    std::filesystem::path systemPath(std::string_view documentPath) const;

private:
    void fillStructureFeatures();
    void showTiff();
    void showAdditionalDocument();
    FilePicture pictureOf(const std::string& documentPath) const;
    std::string fieldOfRow(InfoPageId page, std::string_view field) const;

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    const DocumentType* type_ = nullptr;
    DokuRecord record_;
    std::map<InfoPageId, Recordset> lists_;
    unsigned generation_ = 0;
    RevisionFilter revisionFilter_ = RevisionFilter::Erstellt;
    std::string LblPfadDateiVorlage_;
    std::string LblInfoZusDoku_;
    bool viewGraphic_ = false;
    FilePicture graphic_;
    std::string tiff_;
};

} // namespace quelvarn

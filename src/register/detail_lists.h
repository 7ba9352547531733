#pragma once

#include "database/recordset.h"

#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
class Files;
struct DokuRecord;
struct Labels;

// The rows of the information pages that are lists, in recordsets in memory. A fault of the database throws.

// OpRevErstBearb: who made each revision, or who changed it last.
enum class RevisionFilter : int { Erstellt = 0, Edited = 1 };

// RevBez, Geaendert, Bearbeiter, Aenderung. Revisions without a text of change are left out.
Recordset InfoRevision(Connection& connection, std::string_view table, std::string_view DokuBez, RevisionFilter view);
// The branch of the classification that a document stands in, as VorlageSuchen asks for it: the values of
// Hauptmerkmal_C and below, up to the first empty one.
std::span<const std::string> templateBranch(const DokuRecord& record);
// Bezeichn, Inhalt, Benennung. With a template the row of the branch's last feature is named so.
Recordset structureFeatureList(const DokuRecord& record, const Labels& labels, bool withTemplate);

// ZusDokuDatum, ZusDokuDateiname, ZusDokuSenden, ZusDokufilename, ZusDokuCreated, ZusDokuFileSize. A document that is
// missing has neither dates nor a size.
Recordset additionalDocumentList(Connection& connection, const Files& files, std::string_view filename);
// LblInfoZusDoku for the current row.
std::string additionalDocumentInfo(const Recordset& row);

} // namespace quelvarn

#include "register/document_panels.h"

#include "base/windows_path.h"
#include "documents/document_record.h"
#include "session/session_state.h"

#include <fmt/format.h>

namespace quelvarn {

void DocumentPanels::showDocument(const DokuRecord& record)
{
    fileName_ = record.Dateiname;
    folder_ = Ordnername(record.filename);
    status_ = statusHeading(record, user_.Anwender, status_.colour);
}

void DocumentPanels::showFile(const std::string& filename)
{
    fileName_ = DateiName(filename);
    folder_ = Ordnername(filename);
    status_.text.clear();
}

void DocumentPanels::showViewed(const DokuRecord& record)
{
    showFile(record.filename);
    status_.text = fmt::format("{} Status ", record.Status);
}

void DocumentPanels::clear()
{
    fileName_.clear();
    folder_.clear();
    status_.text.clear();
}

} // namespace quelvarn

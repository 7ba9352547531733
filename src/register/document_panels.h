#pragma once

#include "register/general_page.h"
#include "register/info_pages.h"

#include <string>

namespace quelvarn {

struct SessionUser;

// What StatusBarDatei tells of the document shown, or of one related to it.
class DocumentPanels
{
public:
    explicit DocumentPanels(const SessionUser& user) : user_(user) {}

    void showDocument(const DokuRecord& record);
    // A file without a status, such as that of a component.
    void showFile(const std::string& filename);
    // A document in place of the tables.
    void showViewed(const DokuRecord& record);
    void clear();

    const std::string& fileName() const { return fileName_; } // Panel 2.
    const std::string& folder() const { return folder_; }     // Panel 4.
    const StatusHeading& status() const { return status_; }

private:
    const SessionUser& user_;
    std::string fileName_;
    std::string folder_;
    StatusHeading status_;
};

} // namespace quelvarn

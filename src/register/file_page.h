#pragma once

#include "platform/files.h"
#include "platform/ports.h"
#include "register/info_pages.h"

#include <string>

namespace quelvarn {

struct FileInfo;

// The file properties page (FrmInfoDoku 10), ready to show.
struct FileProperties
{
    bool exists = false; // Without a file the two boxes are disabled and LblNichtVorhanden shows.
    bool readOnly = false;
    bool archive = false;
    std::string name, folder, size, created, changed, accessed;
};

FileProperties fileProperties(const FileInfo& info);

struct CurrentDocument;

// The file properties page: reads what stands in the folder, and sets the two attributes that a person may change. A
// fault has a box of its own.
class FilePage
{
public:
    FilePage(const CurrentDocument& AktDoku, FileInfo& Dateiinfo, Ports& ports)
        : AktDoku_(AktDoku), Dateiinfo_(Dateiinfo), ports_(ports)
    {}

    void read(const std::string& filename);
    void setReadOnly(bool on);
    void setArchive(bool on);
    void clear();

    const FileProperties& shown() const { return shown_; }

private:
    void setAttribute(bool on, void (Files::*set)(std::string_view, bool), bool FileAttributes::*attribute);

    const CurrentDocument& AktDoku_;
    FileInfo& Dateiinfo_;
    Ports& ports_;
    FileProperties shown_;
};

} // namespace quelvarn

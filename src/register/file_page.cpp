#include "register/file_page.h"

#include "base/number_format.h"
#include "base/text.h"
#include "platform/files.h"
#include "session/error_report.h"
#include "session/local_settings.h"

namespace quelvarn {

FileProperties fileProperties(const FileInfo& info)
{
    FileProperties page;
    page.exists = info.exists;
    if (!info.exists)
        return page;
    page.readOnly = info.attribute.readOnly;
    page.archive = info.attribute.archive;
    page.name = info.Name;
    page.folder = info.Ordner;
    page.size = formatInteger(info.attribute.size) + " Bytes";
    page.created = asText(info.attribute.created);
    page.changed = asText(info.attribute.changed);
    page.accessed = asText(info.attribute.access);
    return page;
}

namespace {

bool withFileBox(Boxes& boxes, const std::function<void()>& operation)
{
    const std::string text = lines({
        "Fehler beim Lesen der Dateieigenschaften!",
        "Mögliche Ursache:",
        "Datei ist nicht vorhanden.",
    });
    return guarded(boxes, "Dateieigenschaften", text, operation);
}

} // namespace

void FilePage::read(const std::string& filename)
{
    Dateiinfo_ = {};
    withFileBox(ports_.boxes, [&] { Dateiinfo_ = LeseDateiinfo(filename, ports_); });
    shown_ = fileProperties(Dateiinfo_);
}

void FilePage::setAttribute(bool on, void (Files::*set)(std::string_view, bool), bool FileAttributes::*attribute)
{
    const std::string filename = AktDoku_.filename;
    withFileBox(ports_.boxes, [&] {
        const auto attributes = ports_.files.attribute(filename);
        if (attributes && (*attributes).*attribute != on)
            (ports_.files.*set)(filename, on);
    });
    read(filename);
}

void FilePage::setReadOnly(bool on)
{
    setAttribute(on, &Files::setReadOnly, &FileAttributes::readOnly);
}

void FilePage::setArchive(bool on)
{
    setAttribute(on, &Files::setArchive, &FileAttributes::archive);
}

void FilePage::clear()
{
    Dateiinfo_ = {};
    shown_ = {};
}

} // namespace quelvarn

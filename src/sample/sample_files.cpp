#include "sample/sample_files.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "sample/document_row.h"
#include "sample/links.h"
#include "sample/properties.h"
#include "sample/sample_register.h"
#include "sample/sheets.h"
#include "sample/vocabulary.h"

#include <ctime>
#include <fmt/format.h>
#include <fstream>

namespace quelvarn::sample {

namespace {

RuntimeError fileFault(const std::string& text)
{
    return {0, "qvadmin", text};
}

// Takes "W:\..." paths.
class Drive
{
public:
    explicit Drive(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void write(std::string_view documentPath, std::string_view content, DateTime changed)
    {
        const auto target = systemPath(documentPath);
        if (target.parent_path() != lastFolder_)
            createFolder(target.parent_path());
        lastFolder_ = target.parent_path();
        count_ += std::filesystem::exists(target) ? 0 : 1; // Revisions share their additional documents.
        std::ofstream file(target, std::ios::binary | std::ios::trunc);
        file.write(content.data(), static_cast<std::streamsize>(content.size()));
        file.close();
        if (!file)
            throw fileFault(fmt::format("'{}' lässt sich nicht schreiben.", utf8FromPath(target)));
        std::filesystem::last_write_time(target, fileTime(changed));
    }
    void createFolder(const std::filesystem::path& folder)
    {
        std::error_code fault;
        std::filesystem::create_directories(folder, fault);
        if (fault)
            throw fileFault(
                fmt::format("Der Ordner '{}' lässt sich nicht anlegen: {}", utf8FromPath(folder), fault.message()));
    }
    std::filesystem::path systemPath(std::string_view documentPath) const
    {
        constexpr std::size_t BEHIND_DRIVE = 3;
        return folder_ / pathFromUtf8(replaceAll(documentPath.substr(BEHIND_DRIVE), "\\", "/"));
    }
    std::uint64_t count() const { return count_; }

private:
    static std::filesystem::file_time_type fileTime(DateTime time)
    {
        const CalendarTime k = time.calendar();
        std::tm local{};
        local.tm_year = k.year - 1900;
        local.tm_mon = k.month - 1;
        local.tm_mday = k.day;
        local.tm_hour = k.hour;
        local.tm_min = k.minute;
        local.tm_sec = k.second;
        local.tm_isdst = -1;
        return std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(std::mktime(&local)));
    }

    std::filesystem::path folder_;
    std::filesystem::path lastFolder_;
    std::uint64_t count_ = 0;
};

std::string withExtension(std::string documentPath, std::string_view extension)
{
    return documentPath.replace(documentPath.size() - 3, 3, extension);
}

// Of four orders two lie in their folder, one in the archive, and one has been deleted.
void writeOrder(const UserDefinedProperty& sendOrder, const std::string& title, std::uint32_t part, DateTime time,
                Drive& drive)
{
    const std::string content = fmt::format("Versand an: {}\r\nDokument: {}\r\n", sendOrder.name, title);
    const std::string name = sendOrder.value.substr(sendOrder.value.rfind('\\') + 1);
    if (part % 4 < 2)
        drive.write(sendOrder.value, content, time);
    else if (part % 4 == 2)
        drive.write(fmt::format("{}\\Auftragsarchiv\\{}", ORDER_FOLDER, name), content, time);
}

void writeDocument(const Documents& documents, std::uint32_t part, int revision, Drive& drive)
{
    const std::string documentPath = documents.filename(part, revision);
    const DateTime changed = documents.changed(part, revision);
    const std::string title = fmt::format("{}  {}", documents.fileName(part, revision), documents.title(part));
    drive.write(documentPath, fmt::format("Platzhalter: {}\r\n", title), changed);
    const auto extension = documents.extension(part);
    if (extension == "dft" && part % 3 != 0)
        drive.write(withExtension(documentPath, "pdf"), pdfSheet(title), changed.plusDays(1));
    if (extension == "asm" && part % 3 == 0)
        drive.write(withExtension(documentPath, "cfg"), "Platzhalter\r\n", changed);
    if (const std::string tiff = tiffFile(documents, part, revision); !tiff.empty())
        drive.write(tiff, tiffSheet(), changed.plusDays(1));
    for (const auto& addition : additionalDocuments(documents, part, revision)) {
        if (addition.fileName.ends_with(".pdf"))
            drive.write(addition.filename, pdfSheet(addition.fileName), changed);
        else if (addition.fileName.ends_with(".tif"))
            drive.write(addition.filename, tiffSheet(), changed);
        else if (addition.fileName.ends_with(".txt"))
            drive.write(addition.filename, addition.fileName + "\r\n", changed);
    }
    for (const auto& property : userDefinedProperties(documents, part, revision))
        if (property.sendOrder)
            writeOrder(property, title, part, changed, drive);
}

} // namespace

std::uint64_t writeFiles(const Documents& documents, const std::filesystem::path& folder,
                         const std::function<void(std::uint64_t)>& progress)
{
    Drive drive(folder);
    std::uint64_t document = 0;
    drive.createFolder(drive.systemPath(ORDER_FOLDER));
    forEachDocument(documents, [&](std::uint32_t part, int revision) {
        if (document == DOCUMENTS_WITH_FILE)
            return;
        progress(++document);
        writeDocument(documents, part, revision, drive);
    });
    return drive.count();
}

} // namespace quelvarn::sample

#pragma once

#include "base/collation.h"
#include "base/text.h"
#include "base/windows_path.h"
#include "platform/clock.h"
#include "platform/file_error.h"
#include "platform/files.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace quelvarn {

// A file system in memory with the drives C: and W:, blind to case. `locked` holds folded paths
// that nobody may write, delete or create.
class FakeFiles : public Files
{
public:
    explicit FakeFiles(const Clock& clock) : clock_(clock)
    {
        put("C:", Entry{true});
        put("W:", Entry{true});
    }

    // A file with all its folders.
    void create(std::string_view documentPath, std::string_view content = "")
    {
        for (std::size_t slash = documentPath.find('\\', 2); slash != std::string_view::npos;
             slash = documentPath.find('\\', slash + 1))
            entries_.try_emplace(keyOf(documentPath.substr(0, slash)),
                                 Entry{true, std::string(documentPath.substr(0, slash))});
        write(documentPath, content);
    }
    // The same for a real file, for those that open it by its system path.
    void connect(std::string_view documentPath, const std::filesystem::path& genuine)
    {
        create(documentPath);
        entries_.at(keyOf(documentPath)).genuine = genuine;
    }
    void lock(std::string_view documentPath) { locked.insert(keyOf(documentPath)); }
    // For a test to set times or the hidden attribute.
    FileAttributes& updateAttribute(std::string_view documentPath) { return entry(documentPath).attribute; }

    bool fileExists(std::string_view documentPath) const override
    {
        const Entry* found = search(documentPath);
        return found && !found->folder;
    }
    bool folderExists(std::string_view documentPath) const override
    {
        const Entry* found = search(documentPath);
        return found && found->folder;
    }
    void createFolder(std::string_view documentPath) override
    {
        checkWrite(documentPath);
        if (search(documentPath))
            throw fileFault(std::errc::file_exists, documentPath);
        put(documentPath, Entry{true});
    }
    std::vector<FolderEntry> content(std::string_view folder) const override
    {
        if (!folderExists(folder))
            throw fileFault(std::errc::no_such_file_or_directory, folder);
        std::vector<FolderEntry> names;
        for (const auto& [key, e] : entries_) {
            if (keyOf(Ordnername(e.documentPath)) == keyOf(folder))
                names.push_back({DateiName(e.documentPath), e.folder});
        }
        std::sort(names.begin(), names.end(),
                  [](const auto& a, const auto& b) { return compareText(a.name, b.name) < 0; });
        return names;
    }

    std::optional<FileAttributes> attribute(std::string_view documentPath) const override
    {
        const Entry* found = search(documentPath);
        if (!found || found->folder)
            return std::nullopt;
        FileAttributes result = found->attribute;
        result.size = static_cast<std::int64_t>(found->content.size());
        return result;
    }
    void setReadOnly(std::string_view documentPath, bool set) override { entry(documentPath).attribute.readOnly = set; }
    void setArchive(std::string_view documentPath, bool set) override { entry(documentPath).attribute.archive = set; }

    std::string read(std::string_view documentPath) const override
    {
        if (!fileExists(documentPath))
            throw fileFault(std::errc::no_such_file_or_directory, documentPath);
        return search(documentPath)->content;
    }
    void write(std::string_view documentPath, std::string_view content) override
    {
        checkWrite(documentPath);
        const Entry* old = search(documentPath);
        if (old && (old->folder || old->attribute.readOnly))
            throw fileFault(std::errc::permission_denied, documentPath);
        Entry fresh = old ? *old : Entry{};
        if (!old)
            fresh.attribute.created = fresh.attribute.access = clock_.now();
        fresh.attribute.changed = clock_.now();
        fresh.content = content;
        put(documentPath, std::move(fresh));
    }
    void copy(std::string_view from, std::string_view to) override
    {
        write(to, read(from));
        entry(to).attribute.changed = entry(from).attribute.changed;
    }
    void remove(std::string_view documentPath) override
    {
        checkWrite(documentPath);
        if (entry(documentPath).folder || entry(documentPath).attribute.readOnly)
            throw fileFault(std::errc::permission_denied, documentPath);
        entries_.erase(keyOf(documentPath));
    }

    std::filesystem::path systemPath(std::string_view documentPath) const override
    {
        const Entry* found = search(documentPath);
        return found && !found->genuine.empty() ? found->genuine : std::filesystem::path("/nicht/vorhanden");
    }

    std::set<std::string> locked;

private:
    struct Entry
    {
        bool folder = false;
        std::string documentPath = {};
        std::string content = {};
        FileAttributes attribute = {};
        std::filesystem::path genuine = {};
    };

    static std::string keyOf(std::string_view documentPath)
    {
        std::string key = foldCase(replaceAll(documentPath, "/", "\\"));
        while (key.ends_with('\\'))
            key.pop_back();
        return key;
    }
    const Entry* search(std::string_view documentPath) const
    {
        const auto found = entries_.find(keyOf(documentPath));
        return found == entries_.end() ? nullptr : &found->second;
    }
    Entry& entry(std::string_view documentPath)
    {
        const auto found = entries_.find(keyOf(documentPath));
        if (found == entries_.end())
            throw fileFault(std::errc::no_such_file_or_directory, documentPath);
        return found->second;
    }
    void put(std::string_view documentPath, Entry entry)
    {
        if (entry.documentPath.empty())
            entry.documentPath = documentPath;
        entries_[keyOf(documentPath)] = std::move(entry);
    }
    void checkWrite(std::string_view documentPath) const
    {
        if (locked.contains(keyOf(documentPath)))
            throw fileFault(std::errc::permission_denied, documentPath);
        if (!folderExists(Ordnername(documentPath)))
            throw fileFault(std::errc::no_such_file_or_directory, documentPath);
    }

    const Clock& clock_;
    std::map<std::string, Entry> entries_;
};

} // namespace quelvarn

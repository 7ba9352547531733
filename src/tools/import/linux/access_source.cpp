#include "tools/import/access_source.h"

#include "tools/import/access_header.h"
#include "tools/import/linux/access_reader.h"
#include "tools/import/linux/reader_process.h"

namespace quelvarn::tools {

struct AccessSource::Reader : ReaderProcess
{
    using ReaderProcess::ReaderProcess;
};

AccessSource::AccessSource(const std::filesystem::path& file, std::span<const std::string> wanted,
                           std::chrono::milliseconds deadline)
{
    checkAccessHeader(file);
    reader_ = std::make_unique<Reader>([&](Sender& sender) { readAccessFile(file, wanted, sender); }, deadline);
    catalog_ = Unpacker(reader_->next().content).catalog();
}

AccessSource::~AccessSource() = default;

void AccessSource::read(const std::function<void(const SourceTable&)>& table,
                        const std::function<void(std::span<const Cell>)>& row)
{
    std::vector<Cell> cells;
    for (;;) {
        const Packet packet = reader_->next();
        Unpacker content(packet.content);
        switch (packet.kind) {
        case PacketKind::End:
            return;
        case PacketKind::Table: {
            const SourceTable& next = catalog_.tables.at(content.number32());
            cells.assign(next.columns.size(), {});
            table(next);
            break;
        }
        default:
            while (!content.empty() && !cells.empty()) {
                for (Cell& cell : cells)
                    cell = content.cell();
                row(cells);
            }
        }
    }
}

} // namespace quelvarn::tools

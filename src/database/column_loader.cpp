#include "database/column_loader.h"

#include "base/collation.h"
#include "database/recordset_keys.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t PROGRESS_ROWS = 8192;

// The columns to be filled. Texts are taken over without a Value.
template <class ColumnInfo> struct Target
{
    std::size_t number; // of the reader's column
    ColumnInfo* column;
};

struct Targets
{
    std::vector<Target<TextColumn>> texts;
    std::vector<Target<Column>> other;

    explicit Targets(const ColumnList& columns)
    {
        for (std::size_t number = 0; number < columns.size(); ++number) {
            if (columns[number]->type() == FieldType::Text)
                texts.push_back({number, static_cast<TextColumn*>(columns[number].get())});
            else
                other.push_back({number, columns[number].get()});
        }
    }
};

// Cells on their way to rows all over the columns. To put each where it belongs while the engine works between
// them costs a wait for memory every time; many in a row do not.
class CellBlock
{
public:
    explicit CellBlock(const Targets& targets)
        : targets_(targets), codes_(targets.texts.size()), values_(targets.other.size())
    {}

    void take(const RowReader& reader, RowNumber row)
    {
        rows_.push_back(row);
        for (std::size_t i = 0; i < targets_.texts.size(); ++i) {
            const auto text = reader.findText(targets_.texts[i].number);
            codes_[i].push_back(text ? targets_.texts[i].column->newCode(*text) : 0);
        }
        for (std::size_t i = 0; i < targets_.other.size(); ++i)
            values_[i].push_back(reader.value(targets_.other[i].number));
        if (rows_.size() == BLOCK_ROWS)
            distribute();
    }

    void distribute()
    {
        for (std::size_t i = 0; i < targets_.texts.size(); ++i) {
            for (std::size_t k = 0; k < rows_.size(); ++k)
                targets_.texts[i].column->setCode(rows_[k], codes_[i][k]);
            codes_[i].clear();
        }
        for (std::size_t i = 0; i < targets_.other.size(); ++i) {
            for (std::size_t k = 0; k < rows_.size(); ++k)
                targets_.other[i].column->set(rows_[k], values_[i][k]);
            values_[i].clear();
        }
        rows_.clear();
    }

private:
    static constexpr std::size_t BLOCK_ROWS = 2048;

    const Targets& targets_;
    std::vector<RowNumber> rows_;
    std::vector<std::vector<TextCode>> codes_;
    std::vector<std::vector<Value>> values_;
};

} // namespace

bool DuplicateSearch::isNew(const RowReader& row)
{
    std::string key;
    for (std::size_t number = 0; number < row.columns().size(); ++number) {
        const Value value = row.value(number);
        key += static_cast<char>('0' + value.index());
        key += sortKey(asText(value));
        key += '\0';
    }
    return seen_.insert(std::move(key)).second;
}

void appendRows(RowReader& reader, ColumnList& columns, std::vector<RowKey>* key, DuplicateSearch* duplicates)
{
    const Targets targets(columns);
    while (reader.next()) {
        if (duplicates && !duplicates->isNew(reader))
            continue;
        if (key)
            key->push_back(reader.key());
        for (const auto& [number, column] : targets.texts) {
            if (const auto text = reader.findText(number))
                column->appendText(*text);
            else
                column->appendNull();
        }
        for (const auto& [number, column] : targets.other)
            column->append(reader.value(number));
    }
}

bool setCells(RowReader& reader, ColumnList& columns, KeyMap& map, const Progress& progress, std::size_t rows)
{
    const Targets targets(columns);
    CellBlock block(targets);
    for (std::size_t read = 0; reader.next(); ++read) {
        if (const auto row = map.findRow(reader.key()))
            block.take(reader, *row);
        if (progress && read % PROGRESS_ROWS == 0 && !progress(std::min(read, rows), rows))
            return false;
    }
    block.distribute();
    return true;
}

} // namespace quelvarn

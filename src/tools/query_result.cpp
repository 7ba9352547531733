#include "tools/query_result.h"

#include <cmath>
#include <fmt/format.h>
#include <iterator>

namespace quelvarn::tools {

namespace {

constexpr std::size_t BATCH = 64U << 10; // bytes

using Buffer = fmt::memory_buffer;

void append(Buffer& target, std::string_view text)
{
    target.append(text.data(), text.data() + text.size());
}

void mask(Buffer& target, std::string_view text)
{
    for (const char character : text) {
        switch (character) {
        case '\t':
            append(target, "\\t");
            break;
        case '\n':
            append(target, "\\n");
            break;
        case '\r':
            append(target, "\\r");
            break;
        default:
            target.push_back(character);
        }
    }
}

void jsonText(Buffer& target, std::string_view text)
{
    target.push_back('"');
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            target.push_back('\\');
            target.push_back(character);
        } else if (character == '\n') {
            append(target, "\\n");
        } else if (static_cast<unsigned char>(character) < ' ') {
            fmt::format_to(std::back_inserter(target), "\\u{:04x}", static_cast<unsigned>(character));
        } else {
            target.push_back(character);
        }
    }
    target.push_back('"');
}

// The shortest text that reads back as the same number, marked as no whole number.
void floatingPointNumber(Buffer& target, double number)
{
    const std::string text = fmt::format("{}", number);
    append(target, text);
    if (text.find_first_not_of("-0123456789") == std::string::npos)
        append(target, ".0");
}

class Writer
{
public:
    Writer(OutputForm form, ResultBuffer& out) : json_(form == OutputForm::Json), out_(out) {}

    void heading(const std::vector<ColumnInfo>& columns)
    {
        beginRow();
        for (const ColumnInfo& column : columns) {
            separate();
            text(column.name);
        }
        endRow();
    }

    void row(const RowReader& rows)
    {
        beginRow();
        for (std::size_t i = 0; i < rows.columns().size(); ++i) {
            separate();
            if (rows.isNull(i))
                append(buffer_, json_ ? "null" : "");
            else if (rows.columns()[i].type == FieldType::Text)
                text(rows.text(i));
            else
                value(rows.value(i));
        }
        endRow();
    }

    void flush()
    {
        out_.append({buffer_.data(), buffer_.size()});
        buffer_.clear();
    }

private:
    void beginRow()
    {
        firstCell_ = true;
        if (json_)
            buffer_.push_back('[');
    }
    void endRow()
    {
        if (json_)
            buffer_.push_back(']');
        buffer_.push_back('\n');
        if (buffer_.size() >= BATCH)
            flush();
    }
    void separate()
    {
        if (!firstCell_)
            buffer_.push_back(json_ ? ',' : '\t');
        firstCell_ = false;
    }
    void text(std::string_view text) { json_ ? jsonText(buffer_, text) : mask(buffer_, text); }
    void value(const Value& value)
    {
        if (const auto* number = std::get_if<std::int64_t>(&value))
            fmt::format_to(std::back_inserter(buffer_), "{}", *number);
        else if (const auto* bruch = std::get_if<double>(&value))
            floatingPointNumber(buffer_, *bruch);
        else if (const auto* date = std::get_if<DateTime>(&value))
            text(formatIso(*date));
        else
            text(asText(value));
    }

    bool json_;
    ResultBuffer& out_;
    Buffer buffer_;
    bool firstCell_ = true;
};

} // namespace

std::uint64_t printRows(RowReader& rows, OutputForm form, ResultBuffer& out)
{
    Writer writer(form, out);
    writer.heading(rows.columns());
    std::uint64_t count = 0;
    while (rows.next()) {
        writer.row(rows);
        ++count;
    }
    writer.flush();
    return count;
}

} // namespace quelvarn::tools

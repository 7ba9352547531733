#include "ui/controls/long_text.h"

#include "ui/value_text.h"

#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <set>

namespace quelvarn {

namespace {

constexpr qsizetype PIECE_LETTERS = 8000;
constexpr int GOES_ON = 1; // The state of a block whose paragraph goes on in the next one.

// The value with its paragraphs cut into pieces, each a block; goesOn: the numbers of those that are not the last.
QString inPieces(const QString& value, std::set<int>& goesOn)
{
    QString text;
    text.reserve(value.size());
    int block = 0;
    for (qsizetype begin = 0; begin < value.size(); ++block) {
        const qsizetype lineBreak = value.indexOf(u'\n', begin);
        const qsizetype paragraphEnd = lineBreak >= 0 ? lineBreak + 1 : value.size();
        qsizetype end = paragraphEnd;
        if (end - begin > PIECE_LETTERS) {
            const qsizetype blank = value.lastIndexOf(u' ', begin + PIECE_LETTERS);
            end = blank > begin + PIECE_LETTERS / 2 ? blank + 1 : cutBefore(value, begin + PIECE_LETTERS);
        }
        text += QStringView(value).mid(begin, end - begin);
        if (end < paragraphEnd) {
            text += u'\n';
            goesOn.insert(block);
        }
        begin = end;
    }
    return text;
}

} // namespace

LongText::LongText(const char* name)
{
    setObjectName(QLatin1String(name));
    setReadOnly(true);
    setTabChangesFocus(true);
}

void LongText::showValue(const QString& value)
{
    if (value == value_)
        return;
    value_ = value;
    std::set<int> goesOn;
    QString text = value;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    setPlainText(inPieces(text.replace(u'\r', u'\n'), goesOn));
    for (const int block : goesOn)
        document()->findBlockByNumber(block).setUserState(GOES_ON);
}

QMimeData* LongText::createMimeDataFromSelection() const
{
    const int begin = textCursor().selectionStart();
    const int end = textCursor().selectionEnd();
    QString text;
    for (QTextBlock block = document()->findBlock(begin); block.isValid() && block.position() < end;
         block = block.next()) {
        const int from = std::max(begin - block.position(), 0);
        const int to = std::min(end - block.position(), block.length() - 1);
        text += QStringView(block.text()).mid(from, to - from);
        if (block.position() + block.length() <= end && block.userState() != GOES_ON)
            text += u'\n';
    }
    auto* data = new QMimeData;
    data->setText(text);
    return data;
}

} // namespace quelvarn

#include "ui/value_text.h"

#include <QLocale>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr qsizetype ONE_LINE_LETTERS = 1000;
constexpr qsizetype TIP_LETTERS = 1500;
constexpr qsizetype TIP_LINE_LETTERS = 100;

bool breaksLine(QChar letter)
{
    return letter == u'\n' || letter == u'\r' || letter == u'\v' || letter == u'\f' || letter == QChar(0x85) ||
           letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator;
}

// Behind the last blank that leaves the line short enough, otherwise within the word.
qsizetype lineEnd(const QString& text, qsizetype begin)
{
    const qsizetype most = begin + TIP_LINE_LETTERS;
    const qsizetype lineBreak = text.indexOf(u'\n', begin);
    if (lineBreak >= 0 && lineBreak <= most)
        return lineBreak + 1;
    if (text.size() <= most)
        return text.size();
    const qsizetype blank = text.lastIndexOf(u' ', most);
    return blank > begin ? blank + 1 : cutBefore(text, most);
}

} // namespace

qsizetype cutBefore(const QString& text, qsizetype place)
{
    const auto joined = [&text](qsizetype i) { return text[i].isLowSurrogate() || text[i].isMark(); };
    const qsizetype start = std::min(place, text.size());
    qsizetype cut = start;
    while (cut > 0 && cut < text.size() && joined(cut))
        --cut;
    return cut > 0 ? cut : start;
}

QString oneLine(const QString& value)
{
    const auto special = [](QChar letter) { return breaksLine(letter) || letter == u'\t'; };
    if (value.size() <= ONE_LINE_LETTERS && std::none_of(value.begin(), value.end(), special))
        return value;
    QString line = value.left(cutBefore(value, ONE_LINE_LETTERS));
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(line.begin(), line.end(), special, u' ');
    return value.size() > ONE_LINE_LETTERS ? line + u'…' : line;
}

QString asLines(QString value)
{
    value.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::replace_if(value.begin(), value.end(), breaksLine, QChar(QChar::LineSeparator));
    return value;
}

QString asCaption(const QString& value)
{
    return oneLine(value).replace(u'&', QStringLiteral("&&"));
}

QString asTip(const QString& value)
{
    const QString text = beginning(value, TIP_LETTERS).trimmed();
    QString tip;
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype end = lineEnd(text, begin);
        tip += QStringView(text).mid(begin, end - begin);
        if (end < text.size() && !tip.endsWith(u'\n'))
            tip += u'\n';
        begin = end;
    }
    return tip;
}

QString beginning(const QString& value, qsizetype letters)
{
    if (value.size() <= letters)
        return value;
    const qsizetype cut = cutBefore(value, letters);
    const QString rest = QLocale(QLocale::German).toString(value.size() - cut);
    return value.left(cut) + QStringLiteral(" … (%1 weitere Zeichen)").arg(rest);
}

} // namespace quelvarn

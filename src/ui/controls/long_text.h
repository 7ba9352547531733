#pragma once

#include <QPlainTextEdit>

namespace quelvarn {

// A field to read and copy from, for values of any length. Laying out a paragraph takes time that grows with the square
// of its length, so that a very long one is laid out in pieces. What is copied has no breaks between them.
class LongText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LongText(const char* name);

    // The same value again leaves the place in the text where it is.
    void showValue(const QString& value);

protected:
    QMimeData* createMimeDataFromSelection() const override;

private:
    QString value_;
};

} // namespace quelvarn

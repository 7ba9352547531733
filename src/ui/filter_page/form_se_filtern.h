#pragma once

#include <QWidget>

namespace quelvarn {

// The place of the filter page.
class FormSEFiltern : public QWidget
{
    Q_OBJECT

public:
    FormSEFiltern();
};

} // namespace quelvarn

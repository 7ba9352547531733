#pragma once

#include <QListView>

#include <functional>
#include <string>
#include <vector>

namespace quelvarn {

class ValueModel;

// A list of existing values, quick also with a hundred thousand of them. Typing goes to the first value that begins
// so; a click or Enter picks.
class ValueField : public QListView
{
    Q_OBJECT

public:
    explicit ValueField(const QString& name);

    void display(const std::vector<std::string>& values);
    // Marks a value, or none.
    void mark(const std::string& value);
    std::function<void(const std::string& value)> chosen;

private:
    ValueModel* model_;
};

} // namespace quelvarn

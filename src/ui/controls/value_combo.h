#pragma once

#include <QComboBox>

#include <functional>
#include <string>
#include <vector>

namespace quelvarn {

class ValueModel;

// A combo of existing values, quick also with a hundred thousand of them: typing narrows the list to the values that
// hold the text. Only a pick by a person is told, also the same value again.
class ValueCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit ValueCombo(const QString& name);

    // Other values, or the same ones of another time, empty the text.
    void display(const std::vector<std::string>& values, unsigned generation = 0);
    // The value that was taken over, "" for none; a pick that was refused does not stay.
    void showChosen(const std::string& value);
    std::function<void(const std::string& value)> chosen;

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void notify(int index);
    void discardInput();

    ValueModel* model_;
    unsigned generation_ = 0;
};

} // namespace quelvarn

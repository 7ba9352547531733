#pragma once

#include <QComboBox>

#include <functional>
#include <string>
#include <vector>

namespace quelvarn {

class Wertemodell;

// A combo of existing values, quick also with a hundred thousand of them: typing narrows the list to the values that
// hold the text. Only a pick by a person is told, also the same value again.
class Wertekombo : public QComboBox
{
    Q_OBJECT

public:
    explicit Wertekombo(const QString& name);

    // Other values, or the same ones of another time, empty the text.
    void zeige(const std::vector<std::string>& werte, unsigned fassung = 0);
    // The value that was taken over, "" for none; a pick that was refused does not stay.
    void zeigeGewaehlt(const std::string& wert);
    std::function<void(const std::string& wert)> gewaehlt;

    void showPopup() override;

protected:
    bool event(QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

private:
    void melde(int index);
    void verwirfEingabe();

    Wertemodell* modell_;
    unsigned fassung_ = 0;
};

} // namespace quelvarn

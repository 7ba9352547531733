#pragma once

#include "viewing/viewer.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QLabel;

namespace quelvarn {

class Files;
class ShortLabel;

// The place of one document among the controls of a page: the sign of its type, its name and its folder.
class DocumentPicture : public QWidget
{
    Q_OBJECT

public:
    DocumentPicture();

    // "" clears it.
    void show(std::string_view filename);

protected:
    void changeEvent(QEvent* event) override;

private:
    void draw();

    std::string_view character_;
    QLabel* picture_;
    ShortLabel* name_;
    ShortLabel* folder_;
};

// Names the documents shown and holds no file open.
class QtViewer final : public Viewer
{
public:
    explicit QtViewer(const Files& files);

    bool show(ViewerPlace view, std::string_view filename) override;
    void clear(ViewerPlace view) override;

    // Belongs to the page that takes it into its layout.
    QWidget& place(ViewerPlace view);

private:
    void set(ViewerPlace view, std::string_view filename);

    const Files& files_;
    std::array<QPointer<DocumentPicture>, VIEWER_PLACE_COUNT> places_;
};

} // namespace quelvarn

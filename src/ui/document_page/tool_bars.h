#pragma once

class QToolBar;

namespace quelvarn {

// The tool bars of the document page, by their names. Buttons without work are disabled.
QToolBar* newToolbarSEDokTop();
QToolBar* newToolbarSEDok2();
QToolBar* newToolbarSEDok3();
QToolBar* newToolbarSEDok4();

} // namespace quelvarn

#pragma once

class QToolBar;

namespace quelvarn {

// The tool bars of the document page, by their names. Buttons without work are disabled.
QToolBar* neueToolbarSEDokTop();
QToolBar* neueToolbarSEDok2();
QToolBar* neueToolbarSEDok3();
QToolBar* neueToolbarSEDok4();

} // namespace quelvarn

#pragma once

namespace quelvarn {

enum class Page { None, Start, Filter, Documents };

// A page or a part of the program that follows what the frame and the start page do; takes only what concerns it.
class SessionListener
{
public:
    virtual ~SessionListener() = default;
    // A page came to the front; its first time is its load.
    virtual void pageShown(Page) {}
    // Viewers let go of their files, tool bars go back.
    virtual void reset() {}
    // Another database is about to be opened: what stands open of the old one is let go.
    virtual void databaseChanges() {}
    // It is open, and the session holds its settings.
    virtual void databaseChanged() {}
    virtual void treeSwitchesChanged() {}
    virtual void offlineToolChanged() {}
    // The program ends; rows are written now. The database is still open.
    virtual void unload() {}
};

} // namespace quelvarn

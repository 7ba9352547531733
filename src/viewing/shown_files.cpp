#include "viewing/shown_files.h"

#include <algorithm>

namespace quelvarn {

bool ShownFiles::show(ViewerPlace view, const std::string& filename)
{
    clear(view);
    if (filename.empty() || !viewer_.show(view, filename))
        return false;
    if (!stands(filename))
        use_.add(filename, USE_VIEWING);
    files_[static_cast<std::size_t>(view)] = filename;
    return true;
}

void ShownFiles::clear(ViewerPlace view)
{
    viewer_.clear(view);
    std::string old;
    files_[static_cast<std::size_t>(view)].swap(old);
    if (!old.empty() && !stands(old))
        use_.remove(old, USE_VIEWING);
}

void ShownFiles::DetachViewers()
{
    for (int view = 0; view < VIEWER_PLACE_COUNT; ++view)
        clear(static_cast<ViewerPlace>(view));
}

bool ShownFiles::stands(const std::string& filename) const
{
    return std::ranges::find(files_, filename) != files_.end();
}

} // namespace quelvarn

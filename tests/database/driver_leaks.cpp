// The driver of mdbtools keeps a few bytes of GLib for good; nothing of ours uses GLib in this program.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:g_malloc\n";
}

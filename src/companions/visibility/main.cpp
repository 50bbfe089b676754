// Says how the desktop's file library sees an item: "visibility PATH" prints "hidden" or
// "visible". A process of its own, since the library keeps what it has read for seconds: only a
// fresh one tells what a file manager that is opened now would show.

#include <cstdio>
#include <memory>

#include <gio/gio.h>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: visibility PATH\n", stderr);
        return 1;
    }
    const auto release = [](auto* object) { g_object_unref(object); };
    const std::unique_ptr<GFile, decltype(release)> file(g_file_new_for_path(argv[1]), release);
    GError* error = nullptr;
    const std::unique_ptr<GFileInfo, decltype(release)> info(
        g_file_query_info(file.get(), G_FILE_ATTRIBUTE_STANDARD_IS_HIDDEN,
                          G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS, nullptr, &error),
        release);
    if (!info) {
        std::fprintf(stderr, "visibility: %s\n", error->message);
        g_error_free(error);
        return 1;
    }
    std::puts(g_file_info_get_is_hidden(info.get()) != 0 ? "hidden" : "visible");
    return 0;
}

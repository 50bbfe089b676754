#include "platform/type_identifiers.h"

#include <QHash>

namespace {

const QHash<QString, QString>& knownIdentifiers() {
    static const auto* known = [] {
        struct Pair {
            const char* type;
            const char* identifier;
        };
        constexpr Pair pairs[] = {
            {"inode/directory", "public.folder"},
            {"inode/symlink", "public.symlink"},
            {"text/plain", "public.plain-text"},
            {"text/html", "public.html"},
            {"text/css", "public.css"},
            {"text/csv", "public.comma-separated-values-text"},
            {"text/tab-separated-values", "public.tab-separated-values-text"},
            {"text/markdown", "net.daringfireball.markdown"},
            {"text/rtf", "public.rtf"},
            {"application/rtf", "public.rtf"},
            {"text/vcard", "public.vcard"},
            {"text/calendar", "com.apple.ical.ics"},
            {"text/x-csrc", "public.c-source"},
            {"text/x-chdr", "public.c-header"},
            {"text/x-c++src", "public.c-plus-plus-source"},
            {"text/x-c++hdr", "public.c-plus-plus-header"},
            {"text/x-objcsrc", "public.objective-c-source"},
            {"text/x-java", "com.sun.java-source"},
            {"text/x-python", "public.python-script"},
            {"text/x-python3", "public.python-script"},
            {"text/x-patch", "public.patch-file"},
            {"text/x-makefile", "public.make-source"},
            {"application/x-perl", "public.perl-script"},
            {"application/x-ruby", "public.ruby-script"},
            {"application/x-php", "public.php-script"},
            {"application/x-shellscript", "public.shell-script"},
            {"text/javascript", "com.netscape.javascript-source"},
            {"application/javascript", "com.netscape.javascript-source"},
            {"application/json", "public.json"},
            {"application/x-yaml", "public.yaml"},
            {"application/xml", "public.xml"},
            {"image/png", "public.png"},
            {"image/jpeg", "public.jpeg"},
            {"image/gif", "com.compuserve.gif"},
            {"image/tiff", "public.tiff"},
            {"image/bmp", "com.microsoft.bmp"},
            {"image/webp", "org.webmproject.webp"},
            {"image/heif", "public.heif"},
            {"image/svg+xml", "public.svg-image"},
            {"image/x-icns", "com.apple.icns"},
            {"image/vnd.microsoft.icon", "com.microsoft.ico"},
            {"image/vnd.adobe.photoshop", "com.adobe.photoshop-image"},
            {"audio/mpeg", "public.mp3"},
            {"audio/mp4", "public.mpeg-4-audio"},
            {"audio/x-wav", "com.microsoft.waveform-audio"},
            {"audio/vnd.wave", "com.microsoft.waveform-audio"},
            {"audio/x-aiff", "public.aiff-audio"},
            {"audio/flac", "org.xiph.flac"},
            {"audio/midi", "public.midi-audio"},
            {"video/mp4", "public.mpeg-4"},
            {"video/mpeg", "public.mpeg"},
            {"video/quicktime", "com.apple.quicktime-movie"},
            {"video/x-msvideo", "public.avi"},
            {"video/vnd.avi", "public.avi"},
            {"video/webm", "org.webmproject.webm"},
            {"video/x-matroska", "org.matroska.mkv"},
            {"application/pdf", "com.adobe.pdf"},
            {"application/postscript", "com.adobe.postscript"},
            {"application/epub+zip", "org.idpf.epub-container"},
            {"application/msword", "com.microsoft.word.doc"},
            {"application/vnd.ms-excel", "com.microsoft.excel.xls"},
            {"application/vnd.ms-powerpoint", "com.microsoft.powerpoint.ppt"},
            {"application/vnd.openxmlformats-officedocument.wordprocessingml.document",
             "org.openxmlformats.wordprocessingml.document"},
            {"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet",
             "org.openxmlformats.spreadsheetml.sheet"},
            {"application/vnd.openxmlformats-officedocument.presentationml.presentation",
             "org.openxmlformats.presentationml.presentation"},
            {"application/vnd.oasis.opendocument.text", "org.oasis-open.opendocument.text"},
            {"application/vnd.oasis.opendocument.spreadsheet",
             "org.oasis-open.opendocument.spreadsheet"},
            {"application/vnd.oasis.opendocument.presentation",
             "org.oasis-open.opendocument.presentation"},
            {"application/zip", "public.zip-archive"},
            {"application/gzip", "org.gnu.gnu-zip-archive"},
            {"application/x-compressed-tar", "org.gnu.gnu-zip-tar-archive"},
            {"application/x-tar", "public.tar-archive"},
            {"application/x-bzip", "public.bzip2-archive"},
            {"application/x-bzip2", "public.bzip2-archive"},
            {"application/x-7z-compressed", "org.7-zip.7-zip-archive"},
            {"application/java-archive", "com.sun.java-archive"},
            {"application/x-iso9660-image", "public.iso-image"},
            {"application/x-cd-image", "public.iso-image"},
            {"application/x-executable", "public.unix-executable"},
            {"application/x-pie-executable", "public.unix-executable"},
            {"application/x-ms-dos-executable", "com.microsoft.windows-executable"},
            {"font/ttf", "public.truetype-ttf-font"},
            {"font/otf", "public.opentype-font"},
        };
        auto* identifiers = new QHash<QString, QString>;
        for (const Pair& pair : pairs) {
            identifiers->insert(QLatin1String(pair.type), QLatin1String(pair.identifier));
        }
        return identifiers;
    }();
    return *known;
}

}  // namespace

QString typeIdentifier(const QMimeType& type) {
    const auto& known = knownIdentifiers();
    if (const auto own = known.constFind(type.name()); own != known.cend()) {
        return *own;
    }
    for (const QString& ancestor : type.allAncestors()) {
        if (const auto near = known.constFind(ancestor); near != known.cend()) {
            return *near;
        }
    }
    const QString family = type.name().section(u'/', 0, 0);
    if (family == QLatin1String("image") || family == QLatin1String("audio")) {
        return QStringLiteral("public.") + family;
    }
    return family == QLatin1String("video") ? QStringLiteral("public.movie")
                                            : QStringLiteral("public.data");
}

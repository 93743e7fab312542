#include "workstation/PictureFile.h"

#include "simulator/folder/DurableFile.h"

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QPixmap>

#include <string>
#include <string_view>

namespace workstation {

namespace {

using Path = std::filesystem::path;

// Renaming a picture over a device node would take it away from the whole machine.
std::error_code WhyIrreplaceable(const Path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found || is_regular_file(status)) {
        return {};
    }
    if (error) {
        return error;
    }
    return std::make_error_code(is_directory(status) ? std::errc::is_a_directory
                                                     : std::errc::not_supported);
}

}

// Not by the toolkit's files, which take a name as text and change the bytes of one that is none.
std::error_code WritePictureFile(const QPixmap& picture, const Path& file) {
    QBuffer png;
    if (!png.open(QIODevice::WriteOnly) || !picture.save(&png, "PNG")) {
        return std::make_error_code(std::errc::io_error);
    }
    if (const auto error = WhyIrreplaceable(file)) {
        return error;
    }
    std::error_code error;
    const Path target = std::filesystem::weakly_canonical(file, error);
    if (error) {
        return error;
    }
    // With a number of its own, since two programs may write the same picture.
    Path aside = target;
    aside += "." + std::to_string(QCoreApplication::applicationPid()) + ".new";
    const QByteArray& bytes = png.data();
    return simulator::WriteDurably(
        target, aside, std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
}

}

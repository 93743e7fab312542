#include "tests/pictures/Camera.h"

#include <QHash>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

namespace pictures {

namespace {

constexpr int kTitleHeight = 24; // pixels
constexpr int kTitleMargin = 8;
constexpr int kSmallest = 0; // of the qualities
constexpr QRgb kFrame = 0xff4a5a6a;

int Distance(QRgb one, QRgb other) {
    const auto square = [](int number) { return number * number; };
    return square(qRed(one) - qRed(other)) + square(qGreen(one) - qGreen(other)) +
           square(qBlue(one) - qBlue(other));
}

/// The colours of an image, the most frequent first.
QList<QRgb> ColoursOf(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QList<QRgb> colours = counts.keys();
    std::ranges::sort(colours, std::ranges::greater(), [&](QRgb colour) {
        return std::pair(counts.value(colour), colour); // the same at every run
    });
    return colours;
}

QList<QRgb>::const_iterator FindNearest(const QList<QRgb>& palette, QRgb colour) {
    return std::ranges::min_element(
        palette, {}, [colour](QRgb candidate) { return Distance(candidate, colour); });
}

/// As many of the colours as a palette can hold, such that all others are near to one of them.
QList<QRgb> PaletteOf(const QList<QRgb>& colours) {
    constexpr qsizetype kMostColours = 256;
    for (int tolerance = 0;; ++tolerance) {
        QList<QRgb> palette;
        for (const QRgb colour : colours) {
            const auto nearest = FindNearest(palette, colour);
            if (nearest == palette.end() || Distance(*nearest, colour) > tolerance * tolerance) {
                palette.append(colour);
            }
        }
        if (palette.size() <= kMostColours) {
            return palette;
        }
    }
}

// With a palette, which takes half the bytes and less; no eye sees the difference.
QImage Reduced(const QImage& image) {
    const QList<QRgb> colours = ColoursOf(image);
    const QList<QRgb> palette = PaletteOf(colours);
    QHash<QRgb, uchar> places;
    for (const QRgb colour : colours) {
        places.insert(colour, static_cast<uchar>(FindNearest(palette, colour) - palette.begin()));
    }
    QImage reduced(image.size(), QImage::Format_Indexed8);
    reduced.setColorTable(palette);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            reduced.scanLine(y)[x] = places.value(image.pixel(x, y));
        }
    }
    return reduced;
}

QPixmap Framed(QWidget& window) {
    const QPixmap content = window.grab();
    QPixmap picture(content.width() + 2, content.height() + kTitleHeight + 1);
    picture.fill(QColor(kFrame));
    QPainter painter(&picture);
    painter.drawPixmap(1, kTitleHeight, content);
    QFont font = window.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(kTitleMargin, 0, picture.width() - 2 * kTitleMargin, kTitleHeight),
                     Qt::AlignVCenter | Qt::TextSingleLine,
                     window.windowTitle().replace("[*][*]", "[*]"));
    return picture;
}

}

void CCamera::Take(QWidget& window, const QString& name) const {
    const QPixmap picture = qobject_cast<QMenu*>(&window) ? window.grab() : Framed(window);
    const QString file = m_folder + "/" + name + ".png";
    if (!Reduced(picture.toImage()).save(file, "PNG", kSmallest)) {
        throw std::runtime_error(file.toStdString() + ": cannot be written");
    }
}

}

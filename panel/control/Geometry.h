#pragma once

namespace panel {

struct Point {
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(Point, Point) = default;
};

struct Size {
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(Size, Size) = default;
};

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    constexpr int Right() const { return x + width; }
    constexpr int Bottom() const { return y + height; }

    friend constexpr bool operator==(const Rectangle&, const Rectangle&) = default;
};

}

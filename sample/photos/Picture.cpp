#include "sample/photos/Picture.h"

#include <algorithm>
#include <cmath>

namespace quillmere::sample {
namespace {

std::uint8_t byteOf(double value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

std::uint8_t between(std::uint8_t from, std::uint8_t to, double share) {
    return byteOf(from + (to - from) * share);
}

/// How far the point lies to the left of the line from one point to the other.
double beside(double x, double y, double fromX, double fromY, double toX, double toY) {
    const double alongX = toX - fromX;
    const double alongY = toY - fromY;
    return ((x - fromX) * alongY - (y - fromY) * alongX) / std::hypot(alongX, alongY);
}

} // namespace

Colour shaded(Colour colour, double factor) {
    return {byteOf(colour.red * factor), byteOf(colour.green * factor), byteOf(colour.blue * factor)};
}

Shape ellipse(double x, double y, double radiusX, double radiusY) {
    const auto outside = [=](double px, double py) {
        const double dx = (px - x) / radiusX;
        const double dy = (py - y) / radiusY;
        const double value = dx * dx + dy * dy;
        // The distance to the edge, near enough: the value there divided by how steeply it grows.
        const double slope = 2 * std::hypot(dx / radiusX, dy / radiusY);
        return slope == 0 ? -std::min(radiusX, radiusY) : (value - 1) / slope;
    };
    return {outside, x - radiusX, y - radiusY, x + radiusX, y + radiusY};
}

Shape ring(double x, double y, double radiusX, double radiusY, double thickness) {
    return without(ellipse(x, y, radiusX, radiusY), ellipse(x, y, radiusX - thickness, radiusY - thickness));
}

Shape box(double left, double top, double right, double bottom) {
    const auto outside = [=](double x, double y) {
        return std::max({left - x, x - right, top - y, y - bottom});
    };
    return {outside, left, top, right, bottom};
}

Shape triangle(double x1, double y1, double x2, double y2, double x3, double y3) {
    const auto outside = [=](double x, double y) {
        return std::max(
            {beside(x, y, x1, y1, x2, y2), beside(x, y, x2, y2, x3, y3), beside(x, y, x3, y3, x1, y1)});
    };
    return {outside, std::min({x1, x2, x3}), std::min({y1, y2, y3}), std::max({x1, x2, x3}),
            std::max({y1, y2, y3})};
}

Shape both(const Shape& first, const Shape& second) {
    const auto outside = [a = first.outside, b = second.outside](double x, double y) {
        return std::max(a(x, y), b(x, y));
    };
    return {outside, std::max(first.left, second.left), std::max(first.top, second.top),
            std::min(first.right, second.right), std::min(first.bottom, second.bottom)};
}

Shape without(const Shape& first, const Shape& second) {
    const auto outside = [a = first.outside, b = second.outside](double x, double y) {
        return std::max(a(x, y), -b(x, y));
    };
    return {outside, first.left, first.top, first.right, first.bottom};
}

Picture::Picture(int width, int height)
    : width_(width)
    , height_(height)
    , bytes_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3) {}

std::size_t Picture::place(int x, int y) const {
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)) * 3;
}

Colour Picture::at(int x, int y) const {
    const std::size_t first = place(x, y);
    return {bytes_[first], bytes_[first + 1], bytes_[first + 2]};
}

void Picture::mix(int x, int y, Colour colour, double share) {
    std::uint8_t* dot = &bytes_[place(x, y)];
    dot[0] = between(dot[0], colour.red, share);
    dot[1] = between(dot[1], colour.green, share);
    dot[2] = between(dot[2], colour.blue, share);
}

void Picture::fill(Colour top, Colour bottom) {
    for (int y = 0; y < height_; ++y) {
        const double share = static_cast<double>(y) / height_;
        const Colour colour{between(top.red, bottom.red, share), between(top.green, bottom.green, share),
                            between(top.blue, bottom.blue, share)};
        for (int x = 0; x < width_; ++x)
            mix(x, y, colour, 1);
    }
}

void Picture::paint(const Shape& shape, Colour colour) {
    // One dot more on every side, for the smooth edge.
    const int left = std::max(0, static_cast<int>(shape.left) - 1);
    const int top = std::max(0, static_cast<int>(shape.top) - 1);
    const int right = std::min(width_ - 1, static_cast<int>(shape.right) + 1);
    const int bottom = std::min(height_ - 1, static_cast<int>(shape.bottom) + 1);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const double share = std::clamp(0.5 - shape.outside(x + 0.5, y + 0.5), 0.0, 1.0);
            if (share > 0) mix(x, y, colour, share);
        }
    }
}

} // namespace quillmere::sample

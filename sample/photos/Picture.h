#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace quillmere::sample {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// The colour made darker, or lighter above 1.
[[nodiscard]] Colour shaded(Colour colour, double factor);

/// A flat shape.
struct Shape {
    /// How far a point lies outside it, in dots, negative within.
    std::function<double(double x, double y)> outside;
    /// No part of it lies beyond these.
    double left;
    double top;
    double right;
    double bottom;
};

[[nodiscard]] Shape ellipse(double x, double y, double radiusX, double radiusY);
/// The outline of an ellipse, so many dots thick.
[[nodiscard]] Shape ring(double x, double y, double radiusX, double radiusY, double thickness);
[[nodiscard]] Shape box(double left, double top, double right, double bottom);
/// A triangle with its corners in the order of the clock.
[[nodiscard]] Shape triangle(double x1, double y1, double x2, double y2, double x3, double y3);
/// What two shapes share, and what the first has alone.
[[nodiscard]] Shape both(const Shape& first, const Shape& second);
[[nodiscard]] Shape without(const Shape& first, const Shape& second);

/// A picture of dots, three bytes each: red, green, blue, row after row from the top.
class Picture {
public:
    Picture(int width, int height);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const { return bytes_; }
    [[nodiscard]] Colour at(int x, int y) const;

    /// Fills the whole picture, from one colour at the top to the other at the bottom.
    void fill(Colour top, Colour bottom);
    /// Lays the shape over what is there, with smooth edges.
    void paint(const Shape& shape, Colour colour);

private:
    [[nodiscard]] std::size_t place(int x, int y) const;
    void mix(int x, int y, Colour colour, double share);

    int width_;
    int height_;
    std::vector<std::uint8_t> bytes_;
};

} // namespace quillmere::sample

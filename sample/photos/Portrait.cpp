#include "sample/photos/Portrait.h"

#include "sample/Random.h"

#include <vector>

namespace quillmere::sample {
namespace {

// The head stands in the middle; every other measure starts from here.
constexpr double middle = portraitWidth / 2.0;
constexpr double headY = 176;

const std::vector<Colour> grounds{
    {236, 240, 245}, {67, 142, 219}, {205, 224, 242}, {228, 228, 224}, {186, 52, 52}};
const std::vector<Colour> skins{{244, 212, 184}, {236, 198, 164}, {224, 180, 142}, {248, 220, 196}};
const std::vector<Colour> hairs{{28, 24, 24}, {44, 34, 30}, {58, 42, 34}};
const std::vector<Colour> greys{{120, 118, 118}, {156, 154, 154}, {84, 80, 80}};
const std::vector<Colour> jackets{{36, 48, 74}, {52, 52, 58},  {74, 58, 52},
                                  {44, 78, 84}, {110, 42, 52}, {88, 96, 110}};
const std::vector<Colour> ties{{150, 34, 44}, {40, 74, 140}, {60, 96, 72}, {96, 70, 120}};
constexpr Colour white{250, 250, 250};
constexpr Colour ink{38, 32, 32};

/// One sitting: the measures and colours that chance gives this sitter, laid on from the back to the front.
class Sitting {
public:
    explicit Sitting(const Sitter& sitter) : sitter_(sitter), random_(sitter.looks) {
        skin_ = random_.pick(skins);
        hair_ = random_.chance(sitter.age >= 52 ? 70 : 3) ? random_.pick(greys) : random_.pick(hairs);
        jacket_ = random_.pick(jackets);
        headX_ = 62 + random_.between(0, 10);
        headRadiusY_ = 80 + random_.between(0, 10);
        style_ = random_.between(0, 2);
    }

    Picture draw() {
        const Colour ground = random_.pick(grounds);
        picture_.fill(ground, shaded(ground, 0.93));
        if (!sitter_.male) hairBehind();
        body();
        head();
        face();
        if (sitter_.male) {
            shortHair();
        } else {
            fringe();
        }
        if (random_.chance(35)) glasses();
        return picture_;
    }

private:
    void hairBehind() {
        static constexpr double lengths[] = {150, 118, 100};
        const double length = lengths[style_];
        picture_.paint(ellipse(middle, headY - headRadiusY_ - 8 + length, headX_ + 18, length), hair_);
        // Hair put up shows above the head.
        if (style_ == 2) picture_.paint(ellipse(middle, headY - headRadiusY_ - 14, 30, 26), hair_);
    }

    void body() {
        const double width = sitter_.male ? 136 : 116;
        const Shape jacket = ellipse(middle, 430, width, 124);
        picture_.paint(jacket, jacket_);
        picture_.paint(box(middle - 28, headY + 50, middle + 28, 318), shaded(skin_, 0.9));
        picture_.paint(triangle(middle - 44, 306, middle + 44, 306, middle, 404), white);
        picture_.paint(both(ellipse(middle, 300, 28, 34), box(0, 300, portraitWidth, portraitHeight)),
                       shaded(skin_, 0.9));
        for (const double side : {-1.0, 1.0})
            picture_.paint(both(ellipse(middle + side * 66, 400, 34, 118), jacket), shaded(jacket_, 0.86));
        if (sitter_.male && random_.chance(65)) tie();
    }

    void tie() {
        const Colour colour = random_.pick(ties);
        picture_.paint(triangle(middle - 13, 326, middle + 13, 326, middle, 356), colour);
        picture_.paint(triangle(middle, 338, middle + 16, 413, middle - 16, 413), colour);
    }

    void head() {
        for (const double side : {-1.0, 1.0})
            picture_.paint(ellipse(middle + side * headX_, headY + 10, 12, 19), shaded(skin_, 0.93));
        picture_.paint(ellipse(middle, headY, headX_, headRadiusY_), skin_);
    }

    void face() {
        const double eyes = 26 + random_.between(0, 4);
        const double brow = random_.between(0, 4);
        const Shape mouth =
            ellipse(middle, headY + 44, 20 + random_.between(0, 5), 8 + random_.between(0, 5));
        for (const double side : {-1.0, 1.0}) {
            const double x = middle + side * eyes;
            picture_.paint(ellipse(x, headY - 18 - brow, 15, 3.2), shaded(hair_, 0.9));
            picture_.paint(ellipse(x, headY, 11, 5.5), white);
            picture_.paint(ellipse(x, headY, 5, 5.2), ink);
        }
        picture_.paint(ellipse(middle, headY + 20, 8, 6), shaded(skin_, 0.9));
        // The lower half of it, so that the sitter smiles a little.
        const Colour lips = sitter_.male ? shaded(skin_, 0.72) : Colour{196, 84, 84};
        picture_.paint(both(mouth, box(0, headY + 44, portraitWidth, portraitHeight)), lips);
    }

    /// The cap of hair above a line, less the face below its edge.
    void cap(double lift, double faceRise) {
        picture_.paint(without(both(ellipse(middle, headY - lift, headX_ + 6, headRadiusY_ + 4),
                                    box(0, 0, portraitWidth, headY - 4)),
                               ellipse(middle, headY + 24, headX_ - 4, headRadiusY_ + faceRise)),
                       hair_);
    }

    void shortHair() {
        const bool balding = sitter_.age >= 50 && random_.chance(40);
        if (balding) return cap(0, 14);
        static constexpr double lifts[] = {6, 10, 14};
        cap(lifts[style_], -4 - 4 * style_);
        if (style_ == 1) {
            picture_.paint(both(ellipse(middle + 16, headY - headRadiusY_ + 14, headX_ - 14, 20),
                                ellipse(middle, headY - 10, headX_ + 6, headRadiusY_ + 4)),
                           hair_);
        }
    }

    void fringe() {
        cap(6, -6);
        const double side = random_.chance(50) ? 1 : -1;
        if (style_ != 2) {
            picture_.paint(both(ellipse(middle + side * 26, headY - headRadiusY_ + 22, headX_ - 14, 26),
                                ellipse(middle, headY, headX_ + 6, headRadiusY_ + 4)),
                           hair_);
        }
    }

    void glasses() {
        for (const double side : {-1.0, 1.0})
            picture_.paint(ring(middle + side * 28, headY + 1, 22, 17, 3), ink);
        picture_.paint(box(middle - 7, headY - 3, middle + 7, headY), ink);
    }

    const Sitter& sitter_;
    Random random_;
    Picture picture_{portraitWidth, portraitHeight};
    Colour skin_;
    Colour hair_;
    Colour jacket_;
    double headX_ = 0;
    double headRadiusY_ = 0;
    int style_ = 0;
};

} // namespace

Picture drawPortrait(const Sitter& sitter) { return Sitting(sitter).draw(); }

} // namespace quillmere::sample

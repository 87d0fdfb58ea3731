// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orva {

// Places on the sheet are in points of the screen, y downwards.

struct SheetPoint {
    double x = 0, y = 0;
};

struct SheetBox {
    double left = 0, top = 0, right = 0, bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
    bool Meets(const SheetBox& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

// A curve as it lies on the sheet, with the size of the text that it should carry.
struct LabelledCurve {
    std::vector<SheetPoint> points; // some may lie outside the frame or be infinite
    bool joined = true;             // by a line; otherwise labels stand at points only
    int preferredPoint = 0;         // number of the point that should carry the label, from 1
    double width = 0, height = 0;   // of the label; 0: the curve has none
    double shortWidth = 0;          // of its number alone
};

struct LabelPlace {
    SheetPoint centre;
    bool shortened = false; // there is room for the number only
};

// Finds places for the labels of curves: within the frame, on no other label, over as few other curves as can
// be, and then as near as can be to the preferred point. Candidates lie evenly along the visible part of a
// curve, on it or beside it; short curves choose first.
class LabelLayout {
public:
    explicit LabelLayout(const SheetBox& frame);

    // Keeps labels off a place that is taken already.
    void Block(const SheetBox& box) { taken.push_back(box); }

    // One place for each curve; none where the curve is not to be seen or nothing is free.
    std::vector<std::optional<LabelPlace>> Place(std::span<const LabelledCurve> curves);

private:
    using CurveMask = std::uint64_t;
    struct Candidate {
        SheetPoint at;
        double distance; // from the preferred place, along the curve
    };
    struct Contents { // of a box, in curves and in cells
        int otherCurves = 0, ownCells = 0;
    };

    void MarkCells(std::span<const LabelledCurve> curves);
    void MarkCell(SheetPoint at, CurveMask curve);
    Contents ContentsOf(const SheetBox& box, CurveMask own) const;
    int CostOf(const SheetBox& box, bool beside, CurveMask own, std::ptrdiff_t ownCells) const;
    bool IsTaken(const SheetBox& box) const;
    std::vector<Candidate> CandidatesOf(const LabelledCurve& curve) const;
    std::vector<Candidate> PointsOf(const LabelledCurve& curve) const;
    std::optional<SheetPoint> Search(std::span<const Candidate> candidates, double width, double height,
                                     CurveMask own) const;

    SheetBox frame;
    int columns, rows;
    std::vector<CurveMask> cells; // which curves pass through them
    std::vector<SheetBox> taken;
};

} // namespace orva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/label_layout.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace orva {

namespace {

constexpr double cellSize = 6;
constexpr int mostCandidates = 60;
constexpr double leastStep = 4; // between candidates
constexpr double gap = 2;       // free space around a label
// What makes a place worse.
constexpr int coverCost = 2; // for each other curve under the label
constexpr int besideCost =
    1; // for a label beside its curve, and for each other curve that it might belong to
constexpr int hidingCost = 4;              // for a label that hides most of its curve
constexpr double nearBeside = 10;          // around a label beside its curve: what it might belong to
constexpr double mostHidden = 0.4;         // of a curve
constexpr double preferredFraction = 0.6;  // of the visible length, where the preferred point is not visible
constexpr std::size_t distinctCurves = 64; // curves beyond share the marks of others
constexpr double largestCoordinate = 1e6;  // of a sheet; what lies beyond is cut off

// The part of a segment inside the frame, as fractions of the segment.
struct VisiblePart {
    double from = 0, to = 1;
};

// Narrows the part to low <= start + t step <= high. False if nothing is left. After Liang and Barsky (1984).
bool Narrow(VisiblePart& part, double start, double step, double low, double high) {
    if (step == 0)
        return start >= low && start <= high;
    const double a = (low - start) / step;
    const double b = (high - start) / step;
    part.from = std::max(part.from, std::min(a, b));
    part.to = std::min(part.to, std::max(a, b));
    return part.from <= part.to;
}

std::optional<VisiblePart> Clip(SheetPoint a, SheetPoint b, const SheetBox& frame) {
    VisiblePart part;
    if (!Narrow(part, a.x, b.x - a.x, frame.left, frame.right)
        || !Narrow(part, a.y, b.y - a.y, frame.top, frame.bottom))
        return std::nullopt;
    return part;
}

bool IsOnSheet(SheetPoint point) {
    return std::abs(point.x) < largestCoordinate && std::abs(point.y) < largestCoordinate; // NaN is not
}

bool IsInside(SheetPoint point, const SheetBox& frame) {
    return point.x >= frame.left && point.x <= frame.right && point.y >= frame.top && point.y <= frame.bottom;
}

SheetPoint Between(SheetPoint a, SheetPoint b, double part) {
    return {a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)};
}

// A piece of a curve that can be seen.
struct Piece {
    SheetPoint from, to;
    double start, length; // along the visible curve
};

// The visible pieces, and how far along them the preferred point lies.
struct VisibleCurve {
    std::vector<Piece> pieces;
    double length = 0;
    std::optional<double> preferred;
};

VisibleCurve VisiblePartsOf(const LabelledCurve& curve, const SheetBox& frame) {
    VisibleCurve visible;
    const std::vector<SheetPoint>& points = curve.points;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const SheetPoint a = points[i - 1];
        const SheetPoint b = points[i];
        if (!IsOnSheet(a) || !IsOnSheet(b))
            continue;
        const std::optional<VisiblePart> part = Clip(a, b, frame);
        if (!part)
            continue;
        const SheetPoint from = Between(a, b, part->from);
        const SheetPoint to = Between(a, b, part->to);
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (static_cast<int>(i) == curve.preferredPoint && part->from == 0)
            visible.preferred = visible.length;
        visible.pieces.push_back({from, to, visible.length, length});
        visible.length += length;
        if (static_cast<int>(i) + 1 == curve.preferredPoint && part->to == 1)
            visible.preferred = visible.length;
    }
    return visible;
}

// The box of this size around a point, moved into the frame.
SheetBox BoxAround(SheetPoint centre, double width, double height, const SheetBox& frame) {
    const double x = std::clamp(centre.x, frame.left + width / 2 + gap, frame.right - width / 2 - gap);
    const double y = std::clamp(centre.y, frame.top + height / 2 + gap, frame.bottom - height / 2 - gap);
    return {x - width / 2, y - height / 2, x + width / 2, y + height / 2};
}

} // namespace

LabelLayout::LabelLayout(const SheetBox& theFrame)
    : frame(theFrame), columns(static_cast<int>(std::max(0.0, frame.Width()) / cellSize) + 1),
      rows(static_cast<int>(std::max(0.0, frame.Height()) / cellSize) + 1) {
    cells.resize(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
}

void LabelLayout::MarkCell(SheetPoint at, CurveMask curve) {
    if (!IsInside(at, frame))
        return;
    const int column = std::min(static_cast<int>((at.x - frame.left) / cellSize), columns - 1);
    const int row = std::min(static_cast<int>((at.y - frame.top) / cellSize), rows - 1);
    cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns)
          + static_cast<std::size_t>(column)] |= curve;
}

void LabelLayout::MarkCells(std::span<const LabelledCurve> curves) {
    std::fill(cells.begin(), cells.end(), 0);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const CurveMask mask = CurveMask{1} << (i % distinctCurves);
        if (!curves[i].joined) {
            for (const SheetPoint& point : curves[i].points)
                MarkCell(point, mask);
            continue;
        }
        for (const Piece& piece : VisiblePartsOf(curves[i], frame).pieces) {
            const int steps = static_cast<int>(piece.length / cellSize) + 1;
            for (int k = 0; k <= steps; ++k)
                MarkCell(Between(piece.from, piece.to, static_cast<double>(k) / steps), mask);
        }
    }
}

LabelLayout::Contents LabelLayout::ContentsOf(const SheetBox& box, CurveMask own) const {
    const auto cell = [](double distance, int count) {
        return std::clamp(static_cast<int>(distance / cellSize), 0, count - 1);
    };
    CurveMask found = 0;
    Contents contents;
    const int lastColumn = cell(box.right - frame.left, columns);
    const int lastRow = cell(box.bottom - frame.top, rows);
    for (int row = cell(box.top - frame.top, rows); row <= lastRow; ++row)
        for (int column = cell(box.left - frame.left, columns); column <= lastColumn; ++column) {
            const CurveMask curves = cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns)
                                           + static_cast<std::size_t>(column)];
            found |= curves;
            contents.ownCells += (curves & own) != 0 ? 1 : 0;
        }
    contents.otherCurves = std::popcount(found & ~own);
    return contents;
}

int LabelLayout::CostOf(const SheetBox& box, bool beside, CurveMask own, std::ptrdiff_t ownCells) const {
    const Contents under = ContentsOf(box, own);
    int cost = coverCost * under.otherCurves;
    if (under.ownCells > mostHidden * static_cast<double>(ownCells))
        cost += hidingCost;
    if (beside) {
        const SheetBox around{box.left - nearBeside, box.top - nearBeside, box.right + nearBeside,
                              box.bottom + nearBeside};
        cost += besideCost * (1 + ContentsOf(around, own).otherCurves);
    }
    return cost;
}

bool LabelLayout::IsTaken(const SheetBox& box) const {
    const SheetBox wide{box.left - gap, box.top - gap, box.right + gap, box.bottom + gap};
    return std::any_of(taken.begin(), taken.end(), [&](const SheetBox& other) { return wide.Meets(other); });
}

std::vector<LabelLayout::Candidate> LabelLayout::PointsOf(const LabelledCurve& curve) const {
    std::vector<Candidate> candidates;
    const std::size_t step = std::max<std::size_t>(1, curve.points.size() / mostCandidates);
    for (std::size_t i = 0; i < curve.points.size(); i += step)
        if (IsInside(curve.points[i], frame))
            candidates.push_back(
                {curve.points[i], std::abs(static_cast<double>(i) + 1 - curve.preferredPoint)});
    return candidates;
}

// From the preferred place on to both ends.
std::vector<LabelLayout::Candidate> LabelLayout::CandidatesOf(const LabelledCurve& curve) const {
    if (!curve.joined || curve.points.size() == 1)
        return PointsOf(curve);
    const VisibleCurve visible = VisiblePartsOf(curve, frame);
    std::vector<Candidate> candidates;
    const double preferred = visible.preferred.value_or(preferredFraction * visible.length);
    const double step = std::max(leastStep, visible.length / mostCandidates);
    double next = std::fmod(preferred, step);
    for (const Piece& piece : visible.pieces)
        for (; next <= piece.start + piece.length; next += step) {
            const double part = piece.length > 0 ? (next - piece.start) / piece.length : 0;
            candidates.push_back({Between(piece.from, piece.to, part), std::abs(next - preferred)});
        }
    return candidates;
}

std::optional<SheetPoint> LabelLayout::Search(std::span<const Candidate> candidates, double width,
                                              double height, CurveMask own) const {
    if (width + 2 * gap > frame.Width() || height + 2 * gap > frame.Height())
        return std::nullopt;
    const auto ownCells =
        std::count_if(cells.begin(), cells.end(), [own](CurveMask cell) { return (cell & own) != 0; });
    const double aside = width / 2 + 2 * gap;
    const double above = height / 2 + 2 * gap;
    const SheetPoint offsets[] = {{0, 0}, {0, -above}, {0, above}, {aside, 0}, {-aside, 0}};
    std::optional<SheetPoint> best;
    int lowest = 0;
    double nearest = 0;
    for (const Candidate& candidate : candidates)
        for (const SheetPoint& offset : offsets) {
            const SheetBox box =
                BoxAround({candidate.at.x + offset.x, candidate.at.y + offset.y}, width, height, frame);
            if (IsTaken(box))
                continue;
            const int cost = CostOf(box, offset.x != 0 || offset.y != 0, own, ownCells);
            if (best && (cost > lowest || (cost == lowest && candidate.distance >= nearest)))
                continue;
            best = SheetPoint{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
            lowest = cost;
            nearest = candidate.distance;
        }
    return best;
}

std::vector<std::optional<LabelPlace>> LabelLayout::Place(std::span<const LabelledCurve> curves) {
    MarkCells(curves);
    std::vector<std::vector<Candidate>> candidates;
    std::vector<double> lengths;
    for (const LabelledCurve& curve : curves) {
        candidates.push_back(curve.width > 0 ? CandidatesOf(curve) : std::vector<Candidate>());
        lengths.push_back(VisiblePartsOf(curve, frame).length);
    }
    std::vector<std::size_t> order(curves.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return lengths[a] < lengths[b]; });

    std::vector<std::optional<LabelPlace>> places(curves.size());
    for (const std::size_t i : order) {
        const LabelledCurve& curve = curves[i];
        const CurveMask own = CurveMask{1} << (i % distinctCurves);
        for (const bool shortened : {false, true}) {
            const double width = shortened ? curve.shortWidth : curve.width;
            if (places[i] || !(width > 0))
                continue;
            if (const auto centre = Search(candidates[i], width, curve.height, own)) {
                places[i] = LabelPlace{*centre, shortened};
                Block({centre->x - width / 2, centre->y - curve.height / 2, centre->x + width / 2,
                       centre->y + curve.height / 2});
            }
        }
    }
    return places;
}

} // namespace orva

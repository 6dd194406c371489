#include "model/PathObject.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace rhomba {

int CountDashEntries(const DashDot& dash) {
    if (dash[0] == 0 || dash[1] == 0) return 0;
    if (dash[2] == 0 || dash[3] == 0) return 2;
    if (dash[4] == 0 || dash[5] == 0) return 4;
    if (dash[6] == 0 || dash[7] == 0) return 6;
    return 8;
}

void PathObject::Describe(std::string& out) const {
    char text[48];
    std::snprintf(text, sizeof text, "Pfad mit %d Knoten", static_cast<int>(NodeCount()));
    out = text;
}

void PathObject::Transform(const Matrix2D& matrix) {
    for (Point2& p : points_) p = matrix.TransformPoint(p);
}

bool PathObject::HasFinitePoints() const {
    return std::all_of(points_.begin(), points_.end(),
                       [](Point2 p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

void PathObject::SetStrokeColor(ColorRef color) { stroke_ = WithColour(stroke_, color); }
ColorRef PathObject::GetStrokeColor() const { return stroke_ & kColourMask; }
void PathObject::SetStroke(bool on) { stroke_ = WithSwitch(stroke_, on); }
bool PathObject::HasStroke() const { return (stroke_ & kStyleOn) != 0; }
void PathObject::SetFillColor(ColorRef color) { fill_ = WithColour(fill_, color); }
ColorRef PathObject::GetFillColor() const { return fill_ & kColourMask; }
void PathObject::SetFill(bool on) { fill_ = WithSwitch(fill_, on); }
bool PathObject::HasFill() const { return (fill_ & kStyleOn) != 0; }
void PathObject::SetPenWidth(double width) { penWidth_ = width; }
double PathObject::GetPenWidth() const { return penWidth_; }

void PathObject::SetDashDotRaw(std::uint64_t raw) { std::memcpy(dash_.data(), &raw, sizeof raw); }
void PathObject::SetDashDot(const DashDot& dash) { dash_ = dash; }

std::uint64_t PathObject::GetDashDotRaw() const {
    std::uint64_t raw;
    std::memcpy(&raw, dash_.data(), sizeof raw);
    return raw;
}

bool PathObject::GetDashDot(DashDot& dash) const {
    dash = dash_;
    return true;
}

int PathObject::GetDashCount() const { return CountDashEntries(dash_); }

bool PathObject::AppendFrom(const GraphicObject& other) {
    if (other.GetKind() != ObjectKind::Path) return false;
    const auto& path = static_cast<const PathObject&>(other);
    if (&path == this) return false;
    points_.insert(points_.end(), path.points_.begin(), path.points_.end());
    types_.insert(types_.end(), path.types_.begin(), path.types_.end());
    return true;
}

std::unique_ptr<GraphicObject> PathObject::SplitOff() {
    for (std::size_t i = 1; i < types_.size(); ++i) {
        if (!node::IsMoveTo(types_[i])) continue;
        auto rest = std::make_unique<PathObject>();
        rest->InsertNodes(0, CutNodes(i, types_.size() - i));
        rest->fill_ = fill_;
        rest->stroke_ = stroke_;
        rest->penWidth_ = penWidth_;
        rest->dash_ = dash_;
        return rest;
    }
    return nullptr;
}

void PathObject::AddNode(Point2 p, NodeType t) {
    points_.push_back(p);
    types_.push_back(t);
}

void PathObject::ClearNodes() {
    points_.clear();
    types_.clear();
}

void PathObject::ReserveNodes(std::size_t count) {
    points_.reserve(count);
    types_.reserve(count);
}

NodeRun PathObject::CutNodes(std::size_t first, std::size_t count) {
    assert(points_.size() == types_.size());
    first = std::min(first, points_.size());
    const std::size_t last = first + std::min(count, points_.size() - first);
    NodeRun run;
    run.points.assign(points_.begin() + first, points_.begin() + last);
    run.types.assign(types_.begin() + first, types_.begin() + last);
    points_.erase(points_.begin() + first, points_.begin() + last);
    types_.erase(types_.begin() + first, types_.begin() + last);
    return run;
}

void PathObject::InsertNodes(std::size_t index, const NodeRun& run) {
    assert(run.points.size() == run.types.size());
    index = std::min(index, points_.size());
    points_.insert(points_.begin() + index, run.points.begin(), run.points.end());
    types_.insert(types_.begin() + index, run.types.begin(), run.types.end());
}

void PathObject::Reverse(NodeRun& run) {
    std::reverse(run.points.begin(), run.points.end());
    std::reverse(run.types.begin(), run.types.end());
}

} // namespace rhomba

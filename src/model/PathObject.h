#pragma once

#include "model/GraphicObject.h"

#include <cstddef>
#include <vector>

namespace rhomba {

// A run of nodes taken out of a path or about to go into one: points and their types.
struct NodeRun {
    std::vector<Point2> points;
    std::vector<NodeType> types;
};

// Counts the usable entries of a dash pattern: 0, 2, 4, 6 or 8.
int CountDashEntries(const DashDot& dash);

// A sequence of figures made of straight segments and cubic Beziers.
// Note: points and types are parallel arrays of equal length; every change goes through the
// members below so that they stay so.
class PathObject : public GraphicObject {
public:
    static constexpr ColorRef kDefaultFillColor = 0xAAAAAA;
    static constexpr double kDefaultPenWidth = 0.25;

    void Describe(std::string& out) const override;
    void SaveNative(NativeWriter& out, bool reset) override;
    void ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) override;
    ObjectKind GetKind() const override { return ObjectKind::Path; }
    // Screen drawing: fill, stroke at the zoom's width, selection overdraw, node handles.
    void DrawEdit(Device& device, const DrawContext& context, unsigned flags) override;
    // Device drawing in twentieths of a point through the shared pen and brush cache.
    void Render(Device& device, const Matrix2D& view) override;
    void Transform(const Matrix2D& matrix) override;
    // The box of all points, control points included; widened by half the pen width on request.
    bool GetBounds(Rect2& bounds, bool withPenWidth) override;
    // The path when any segment, closing ones included, passes within tolerance of probe.
    GraphicObject* HitTest(Point2 probe, double tolerance) override;

    void SetStrokeColor(ColorRef color) override;
    ColorRef GetStrokeColor() const override;
    void SetStroke(bool on) override;
    bool HasStroke() const override;
    void SetFillColor(ColorRef color) override;
    ColorRef GetFillColor() const override;
    void SetFill(bool on) override;
    bool HasFill() const override;
    void SetPenWidth(double width) override;
    double GetPenWidth() const override;
    void SetDashDotRaw(std::uint64_t raw) override;
    void SetDashDot(const DashDot& dash) override;
    std::uint64_t GetDashDotRaw() const override;
    bool GetDashDot(DashDot& dash) const override;
    int GetDashCount() const override;

    bool AppendFrom(const GraphicObject& other) override;
    std::unique_ptr<GraphicObject> SplitOff() override;
    void WrapCylinder(const CylinderWrapParams& params) override;
    void RotateIsoPlane(const PlaneRotationParams& params) override;

    std::size_t NodeCount() const { return points_.size(); }
    const std::vector<Point2>& Points() const { return points_; }
    const std::vector<NodeType>& Types() const { return types_; }
    Point2 PointAt(std::size_t i) const { return points_[i]; }
    NodeType TypeAt(std::size_t i) const { return types_[i]; }
    void SetPoint(std::size_t i, Point2 p) { points_[i] = p; }
    void SetType(std::size_t i, NodeType t) { types_[i] = t; }
    void AddNode(Point2 p, NodeType t);
    void ClearNodes();
    void ReserveNodes(std::size_t count);

    // Removes count nodes from first on and returns them (clamped to the path's end).
    NodeRun CutNodes(std::size_t first, std::size_t count);
    // Inserts a run before index (an index at or past the end appends).
    void InsertNodes(std::size_t index, const NodeRun& run);
    static void Reverse(NodeRun& run);

    // The raw style words: low 24 bits colour, bit 24 on.
    std::uint32_t GetStrokeWord() const { return stroke_; }
    std::uint32_t GetFillWord() const { return fill_; }

private:
    std::vector<Point2> points_;
    std::vector<NodeType> types_;
    std::uint32_t stroke_ = kStyleOn | 0x000000;
    std::uint32_t fill_ = kStyleOn | kDefaultFillColor;
    double penWidth_ = kDefaultPenWidth;
    DashDot dash_{};
};

} // namespace rhomba

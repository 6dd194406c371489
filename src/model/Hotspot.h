#pragma once

#include "model/GraphicObject.h"

namespace rhomba {

// A named clickable rectangle. Its rectangle is kept normalised: x1 <= x2 and y1 >= y2, so the
// first corner is the upper left in the y-up document.
class Hotspot : public GraphicObject {
public:
    static constexpr char kDefaultMode = 'n';

    void Describe(std::string& out) const override;
    // Names an unnamed hotspot "H_<hex>" first; the name stays.
    void SaveNative(NativeWriter& out, bool reset) override;
    // Hotspots have no SVG form.
    void ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) override;
    ObjectKind GetKind() const override { return ObjectKind::Hotspot; }
    // A one-pixel rectangle, blue when selected, light red otherwise.
    void DrawEdit(Device& device, const DrawContext& context, unsigned flags) override;
    // Copies the rectangle; the pen width does not apply.
    bool GetBounds(Rect2& bounds, bool withPenWidth) override;
    // Near one of the four edges, tested top, right, bottom, left; the inside is no hit.
    GraphicObject* HitTest(Point2 probe, double tolerance) override;
    void Transform(const Matrix2D& matrix) override;

    void SetRect(double x1, double y1, double x2, double y2);
    // The corners as (x1, y1) upper left and (x2, y2) lower right.
    Rect2 GetRect() const { return {x1_, y1_, x2_, y2_}; }
    char GetMode() const { return mode_; }
    void SetMode(char mode) { mode_ = mode; }

private:
    double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
    char mode_ = kDefaultMode;
};

} // namespace rhomba

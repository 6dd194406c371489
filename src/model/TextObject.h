#pragma once

#include "model/PathObject.h"

namespace rhomba {

// A line of text drawn through the glyph outlines of its font. The outline is a path held by
// value (not a child) that carries the text's stroke, fill, pen width and dash.
// Note: the cache holds the text the outline was built from; every setter that changes the look
// empties it, which marks the outline stale.
class TextObject : public GraphicObject {
public:
    static constexpr std::uint32_t kBold = 1;
    static constexpr std::uint32_t kItalic = 2;

    TextObject();

    void Describe(std::string& out) const override;
    void SaveNative(NativeWriter& out, bool reset) override;
    // Written as an SVG text element at size 16, scaled, turned and moved into place.
    void ExportSvg(SvgWriter& out, const Matrix2D& matrix, int depth) override;
    ObjectKind GetKind() const override { return ObjectKind::Text; }
    // On the screen the outline draws, with the text's selection.
    void DrawEdit(Device& device, const DrawContext& context, unsigned flags) override;
    // On devices the font draws: TextOutW at the anchor with the mixed text colour.
    void Render(Device& device, const Matrix2D& view) override;
    void SetSelected(bool selected) override;
    void Attach(Document* document, Group* parent, std::uint32_t requestedId) override;
    // Refreshes the outline, then measures it; false for an empty text.
    bool GetBounds(Rect2& bounds, bool withPenWidth) override;
    // Refreshes the outline and returns this text when the outline is hit.
    GraphicObject* HitTest(Point2 probe, double tolerance) override;
    // Maps the origin and composes the matrix's linear part into the text transform.
    void Transform(const Matrix2D& matrix) override;

    void SetStrokeColor(ColorRef color) override { outline_.SetStrokeColor(color); }
    ColorRef GetStrokeColor() const override { return outline_.GetStrokeColor(); }
    void SetStroke(bool on) override { outline_.SetStroke(on); }
    bool HasStroke() const override { return outline_.HasStroke(); }
    void SetFillColor(ColorRef color) override { outline_.SetFillColor(color); }
    ColorRef GetFillColor() const override { return outline_.GetFillColor(); }
    void SetFill(bool on) override { outline_.SetFill(on); }
    bool HasFill() const override { return outline_.HasFill(); }
    void SetPenWidth(double width) override { outline_.SetPenWidth(width); }
    double GetPenWidth() const override { return outline_.GetPenWidth(); }
    void SetDashDotRaw(std::uint64_t raw) override { outline_.SetDashDotRaw(raw); }
    void SetDashDot(const DashDot& dash) override { outline_.SetDashDot(dash); }
    std::uint64_t GetDashDotRaw() const override { return outline_.GetDashDotRaw(); }
    bool GetDashDot(DashDot& dash) const override { return outline_.GetDashDot(dash); }
    int GetDashCount() const override { return outline_.GetDashCount(); }

    void SetTextFont(const std::string& font) override;
    void SetTextSize(double size) override;
    void SetTextPosition(double x, double y) override;
    void SetText(const std::string& text) override;
    void SetBold(bool bold) override;
    void SetItalic(bool italic) override;
    // The 2x2 linear map applied to the glyphs about the origin (e and f are ignored).
    void SetTextTransform(double a, double b, double c, double d);

    bool AppendFrom(const GraphicObject& other) override;

    const std::string& GetFont() const { return font_; }
    const std::string& GetText() const { return text_; }
    double GetSize() const { return size_; }
    Point2 GetPosition() const { return position_; }
    // a, b, c, d of the text transform, with e = f = 0.
    const Matrix2D& GetTextTransform() const { return transform_; }
    bool IsBold() const { return (style_ & kBold) != 0; }
    bool IsItalic() const { return (style_ & kItalic) != 0; }

    PathObject& Outline() { return outline_; }
    const PathObject& Outline() const { return outline_; }
    // Rebuilds the outline from the glyphs of the installed glyph source when the cache says it
    // is stale (built with the glyph code, in src/text).
    void RefreshOutline();
    // The sum of the glyph advances, scaled like the outline (as of the last refresh).
    double GetWidth() const { return width_; }
    // The end of the baseline: the advance mapped through the outline matrix.
    Point2 GetEndPoint() const { return endPoint_; }

    // The text the outline was last built from; empty when the outline is stale.
    const std::string& GetCache() const { return cache_; }
    void SetCache(std::string cache) { cache_ = std::move(cache); }

private:
    void Invalidate() { cache_.clear(); }

    PathObject outline_;
    std::string font_ = "Arial";
    std::string text_;
    double size_ = 12.0;
    Point2 position_;
    Matrix2D transform_;
    std::uint32_t style_ = 0;
    std::string cache_;
    double width_ = 0;
    Point2 endPoint_;
};

} // namespace rhomba

#pragma once

#include "model/PathObject.h"
#include "model/TextBody.h"
#include "model/TextLook.h"

#include <string_view>

namespace rhomba {

// A line of text drawn through the glyph outlines of its font. The outline is a path (not a
// child) built on demand that carries the text's stroke, fill, pen width and dash.
// Note: the cache holds the text the outline was built from; every setter that changes the
// glyphs empties it, which marks the outline stale.
class TextObject : public GraphicObject {
public:
    static constexpr std::uint32_t kBold = 1;
    static constexpr std::uint32_t kItalic = 2;

    TextObject() = default;

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

    void SetStrokeColor(ColorRef color) override;
    ColorRef GetStrokeColor() const override { return Look().stroke & kColourMask; }
    void SetStroke(bool on) override;
    bool HasStroke() const override { return (Look().stroke & kStyleOn) != 0; }
    void SetFillColor(ColorRef color) override;
    ColorRef GetFillColor() const override { return Look().fill & kColourMask; }
    void SetFill(bool on) override;
    bool HasFill() const override { return (Look().fill & kStyleOn) != 0; }
    void SetPenWidth(double width) override;
    double GetPenWidth() const override { return Look().penWidth; }
    void SetDashDotRaw(std::uint64_t raw) override;
    void SetDashDot(const DashDot& dash) override;
    std::uint64_t GetDashDotRaw() const override;
    bool GetDashDot(DashDot& dash) const override;
    int GetDashCount() const override { return CountDashEntries(Look().dash); }

    void SetTextFont(const std::string& font) override;
    void SetTextSize(double size) override;
    void SetTextPosition(double x, double y) override;
    void SetText(const std::string& text) override;
    void SetBold(bool bold) override;
    void SetItalic(bool italic) override;
    // The 2x2 linear map applied to the glyphs about the origin (e and f are ignored).
    void SetTextTransform(double a, double b, double c, double d);

    bool AppendFrom(const GraphicObject& other) override;

    const std::string& GetFont() const { return Look().font; }
    std::string_view GetText() const { return body_.View(); }
    double GetSize() const { return Look().size; }
    Point2 GetPosition() const { return position_; }
    // a, b, c, d of the text transform, with e = f = 0.
    const Matrix2D& GetTextTransform() const { return Look().transform; }
    bool IsBold() const { return (Look().style & kBold) != 0; }
    bool IsItalic() const { return (Look().style & kItalic) != 0; }

    // The first call makes the outline's box; the outline holds no nodes until refreshed.
    PathObject& Outline() { return OutlineBox().outline; }
    const PathObject& Outline() const { return OutlineBox().outline; }
    // Rebuilds the outline from the glyphs of the installed glyph source when the cache says it
    // is stale (built with the glyph code, in src/text).
    void RefreshOutline();
    // The sum of the glyph advances, scaled like the outline (as of the last refresh).
    double GetWidth() const;
    // The end of the baseline: the advance mapped through the outline matrix (the position
    // itself until an outline is first built).
    Point2 GetEndPoint() const;

    // The text the outline was last built from; empty when the outline is stale.
    const std::string& GetCache() const;
    void SetCache(std::string cache) { OutlineBox().cache = std::move(cache); }

private:
    const TextLook& Look() const { return look_.Get(); }
    // Moves to the look that change makes of the current one; a change of the glyphs marks the
    // outline stale, and a built outline takes the new look's paint either way.
    template <class Change>
    void ChangeLook(bool glyphs, Change change);
    void Invalidate();
    // The box with the outline, made on first use with this text's id, parent, selection, paint.
    TextOutlineBox& OutlineBox() const;
    void PaintOutline(PathObject& outline) const;

    // Note: 40 bytes beside the base, so that a short text costs under 100 bytes all told.
    SharedLook look_;
    std::uint32_t outlineId_ = 0; // issued when attached, before the outline exists
    Point2 position_;
    mutable TextBody body_;
};

} // namespace rhomba

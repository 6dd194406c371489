#pragma once

#include "geometry/Matrix2D.h"
#include "geometry/Point2.h"
#include "geometry/Rect2.h"
#include "model/Types.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace rhomba {

class Device;
struct DrawContext;
class Document;
class Group;
class NativeWriter;
class QuendaReader;
class QuendaWriter;
class SvgWriter;
struct CylinderWrapParams;
struct PlaneRotationParams;

// Every drawable thing of a drawing. The rest of the program works on objects only through this
// interface and GetKind, never by testing the concrete class.
//
// Note: the 48 virtual operations are declared here once, in their fixed slot order. Bodies that
// belong to other concerns (drawing, files, exports, cylinder, plane) live in the folder of that
// concern; what stands here is the base behaviour.
class GraphicObject {
public:
    static constexpr std::uint32_t kFlagSelected = 1;
    static constexpr std::uint32_t kFlagHidden = 2;

    GraphicObject() = default;
    GraphicObject(const GraphicObject&) = delete;
    GraphicObject& operator=(const GraphicObject&) = delete;
    virtual ~GraphicObject() = default;

    /*  0 */ virtual void Describe(std::string& out) const;
    /*  1 */ virtual void DrawEdit(Device& device, const DrawContext& context, unsigned flags);
    /*  2 */ virtual void SaveNative(NativeWriter& out, bool reset);
    /*  3 */ virtual void ExportQuenda(QuendaWriter& out, const Matrix2D& matrix);
    /*  4 */ virtual void ExportSvg(SvgWriter& out, const Matrix2D& matrix, int flag);
    /*  5 */ virtual void Render(Device& device, const Matrix2D& view);
    /*  6 */ virtual void ReadQuenda(QuendaReader& in, const Matrix2D& matrix);
    /*  7 */ virtual void SetSelected(bool selected);
    /*  8 */ virtual bool IsSelected() const;
    /*  9 */ virtual void SetHidden(bool hidden);
    /* 10 */ virtual bool IsHidden() const;
    // Registers the object with a document and its parent; an object without an id gets the
    // requested one, or the document's next id when 0 is requested.
    /* 11 */ virtual void Attach(Document* document, Group* parent, std::uint32_t requestedId);
    /* 12 */ virtual int IndexOf(const GraphicObject* child) const;
    /* 13 */ virtual bool CollectInRect(std::vector<GraphicObject*>& list, double x1, double y1,
                                        double x2, double y2, int mode);
    /* 14 */ virtual int CountObjects() const;
    /* 15 */ virtual ObjectKind GetKind() const;
    // Writes the box into bounds and returns true; returns false and leaves bounds alone when
    // there is nothing to measure.
    /* 16 */ virtual bool GetBounds(Rect2& bounds, bool withPenWidth);
    /* 17 */ virtual GraphicObject* FindByName(const std::string& name, bool includeHidden);
    /* 18 */ virtual GraphicObject* FindById(std::uint32_t id, bool includeHidden);
    // Destroys a descendant; true when it was found.
    /* 19 */ virtual bool DeleteChild(const GraphicObject* object, bool includeHidden);
    /* 20 */ virtual GraphicObject* HitTest(Point2 probe, double tolerance);
    /* 21 */ virtual void Transform(const Matrix2D& matrix);
    /* 22 */ virtual void SetStrokeColor(ColorRef color);
    /* 23 */ virtual ColorRef GetStrokeColor() const;
    /* 24 */ virtual void SetStroke(bool on);
    /* 25 */ virtual bool HasStroke() const;
    /* 26 */ virtual void SetFillColor(ColorRef color);
    /* 27 */ virtual ColorRef GetFillColor() const;
    /* 28 */ virtual void SetFill(bool on);
    /* 29 */ virtual bool HasFill() const;
    /* 30 */ virtual void SetPenWidth(double width);
    /* 31 */ virtual double GetPenWidth() const;
    /* 32 */ virtual void SetDashDotRaw(std::uint64_t raw);
    /* 33 */ virtual void SetDashDot(const DashDot& dash);
    /* 34 */ virtual std::uint64_t GetDashDotRaw() const;
    /* 35 */ virtual bool GetDashDot(DashDot& dash) const;
    /* 36 */ virtual int GetDashCount() const;
    /* 37 */ virtual void SetTextFont(const std::string& font);
    /* 38 */ virtual void SetTextSize(double size);
    /* 39 */ virtual void SetTextPosition(double x, double y);
    /* 40 */ virtual void SetText(const std::string& text);
    /* 41 */ virtual void SetBold(bool bold);
    /* 42 */ virtual void SetItalic(bool italic);
    /* 43 */ virtual bool AppendFrom(const GraphicObject& other);
    // Cuts everything from the second figure on into a new object; null when there is none.
    /* 44 */ virtual std::unique_ptr<GraphicObject> SplitOff();
    // Name, stroke colour and switch, pen width, dash, fill colour and switch, through the
    // getters of other and the setters of this object.
    /* 45 */ virtual void CopyStyleFrom(const GraphicObject& other);
    /* 46 */ virtual void WrapCylinder(const CylinderWrapParams& params);
    /* 47 */ virtual void RotateIsoPlane(const PlaneRotationParams& params);

    std::uint32_t GetId() const { return id_; }
    std::uint32_t GetFlags() const { return flags_; }
    void SetFlags(std::uint32_t flags) { flags_ = flags; }
    const std::string& GetName() const;
    void SetName(std::string name);
    // The document at the top of the parent chain; null for an object outside any drawing.
    Document* GetOwner() const;
    // The container that holds this object; null for the document and detached objects.
    Group* GetParent() const { return parent_; }
    void SetParent(Group* parent) { parent_ = parent; }

private:
    Group* parent_ = nullptr;
    std::uint32_t id_ = 0;
    std::uint32_t flags_ = 0;
    // Held apart, since few objects carry a name; null for none.
    std::unique_ptr<std::string> name_;

    friend class Document;   // gives itself id 1
    friend class TextObject; // hands its outline the id reserved for it
};

// The kind code's test for "is a group, layer or document".
inline bool IsContainer(const GraphicObject& object) {
    return IsContainerKind(object.GetKind());
}

} // namespace rhomba

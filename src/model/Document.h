#pragma once

#include "model/Group.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace rhomba {

// The style that new objects receive.
struct StyleDefaults {
    ColorRef strokeColor = 0x000000;
    bool strokeOn = true;
    double penWidth = 0.25;
    DashDot dash{};
    ColorRef fillColor = 0xAAAAAA;
    bool fillOn = true;
    std::string font = "Arial";
    double textSize = 12.0;
    bool bold = false;
    bool italic = false;
};

// What the canvas reads and writes: the view matrix maps document points to client pixels.
struct ViewState {
    double zoom = 0.5;
    Matrix2D view;
    Matrix2D inverse;
    Matrix2D third;

    ViewState();
};

// How a list of objects changes the selection.
enum class SelectionChange { Replace, Add, Toggle };

// The one drawing the program edits: a group of layers, with the file name, the current layer,
// the view, the id counter, the selection and the style defaults.
// Note: a new Document has pen width 0.25 by default, one cleared by Reset has 1.0; both stay.
class Document : public Group {
public:
    static constexpr std::uint32_t kFlagDraft = 4;
    // What GetBounds starts from, and so answers for a drawing with nothing in it: left beyond
    // any right, top below any bottom. Note: not the accumulator's start of Rect2; both stay.
    static constexpr double kEmptyDrawingMark = 987654321.9;

    Document();

    ObjectKind GetKind() const override { return ObjectKind::Document; }
    // The whole file: header, every layer with its children, end line.
    void SaveNative(NativeWriter& out, bool reset) override;
    // Starts from the empty-drawing mark, then measures the layers like a group.
    bool GetBounds(Rect2& bounds, bool withPenWidth) override;
    // Divides the tolerance by the zoom, then asks the layers from the first to the last.
    GraphicObject* HitTest(Point2 probe, double tolerance) override;

    // The id for an object being attached: requestedId when not 0, else the next of the counter.
    // Note: a file may ask for the largest id; from then on new ids fill the gaps between the
    // ids in the drawing, so that they stay unique.
    std::uint32_t IssueId(std::uint32_t requestedId);
    std::uint32_t LastId() const { return ids_.last; }

    // The current layer, created (unnamed, as layer 0) when the drawing has none.
    Layer& CurrentLayer();
    int CurrentLayerIndex() const { return currentLayer_; }
    void SetCurrentLayerIndex(int index) { currentLayer_ = index; }
    // Starts a layer for a file's Layer line: a still-empty current layer is reused. A lowercase
    // "v" in flags hides it.
    Layer& NewLayer(const std::string& name, const std::string& flags);
    std::size_t LayerCount() const { return ChildCount(); }
    Layer& LayerAt(std::size_t i) const { return static_cast<Layer&>(*ChildAt(i)); }

    // Puts a new object on top of the current layer and makes it the only selection.
    GraphicObject* AddObject(std::unique_ptr<GraphicObject> object);
    // Empties the drawing for a new document or before loading.
    void Reset();
    // Reset, then takes over the layers, ids and current layer of other, which is left empty:
    // a drawing read beside the open one replaces it in one step.
    void TakeDrawing(Document& other);

    const std::string& GetFileName() const { return fileName_; }
    void SetFileName(std::string fileName);
    // Told the file name whenever it changes, so that the shell can retitle its window.
    std::function<void(const std::string&)> onTitleChange;

    // The selection, in the order the objects were selected; it does not own them.
    const std::vector<GraphicObject*>& Selection() const { return selection_; }
    void ClearSelection();
    void AddToSelection(GraphicObject* object);
    void RemoveFromSelection(GraphicObject* object);
    void ToggleSelection(GraphicObject* object);
    // Applies a whole list (without duplicates) at once, in linear time: a rubber band over a
    // large drawing picks up every object of it.
    void ChangeSelection(const std::vector<GraphicObject*>& objects, SelectionChange change);
    // Takes the selected objects out of the selection, then deletes them from the drawing.
    void DeleteSelection();
    // The box of all selected objects without pen widths, from the Rect2 sentinel.
    Rect2 SelectionBounds();

    // Restacks the selected objects within their own parents: -1 one back, -111 to the back,
    // 1 one forward, 111 to the front. Selected neighbours never pass each other.
    void Arrange(int step);
    // Moves the selection into a new group on the layer of the last selected object; the group
    // becomes the selection. Returns it, or null when nothing is selected.
    Group* GroupSelection();
    // Dissolves the one selected group into its layer; false when the selection is not exactly
    // one group.
    bool UngroupSelection();

    StyleDefaults defaults;
    ViewState view;

private:
    void ArrangeBackward(bool all);
    void ArrangeForward(bool all);

    std::uint32_t IssueFreeId();

    std::string fileName_;
    int currentLayer_ = 0;
    struct Ids {
        std::uint32_t last = 1;
        // Once the counter is at its end: the ids above the last one handed out that are taken,
        // in order, and that last one.
        std::vector<std::uint32_t> taken;
        std::uint32_t gap = 1;
        bool exhausted = false;
    } ids_;
    std::vector<GraphicObject*> selection_;
};

// The nearest layer above object, or null.
Layer* EnclosingLayer(const GraphicObject& object);

} // namespace rhomba

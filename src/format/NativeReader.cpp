#include "format/NativeReader.h"

#include "format/NativeWriter.h"
#include "geometry/NumberText.h"
#include "model/Colour.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/Reporter.h"
#include "model/TextObject.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <unordered_map>
#include <vector>

namespace rhomba {

namespace {

bool IsSeparator(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A cursor over the fields of one line.
struct Fields {
    const char* p;
    const char* end;

    void SkipBlanks() {
        while (p < end && IsSeparator(*p)) ++p;
    }
    void SkipWord() {
        while (p < end && !IsSeparator(*p)) ++p;
    }
    std::string_view Word() {
        SkipBlanks();
        const char* start = p;
        SkipWord();
        return {start, static_cast<std::size_t>(p - start)};
    }
    // The rest of the line after the single separator that ends the previous field.
    std::string_view Rest() {
        if (p < end && IsSeparator(*p)) ++p;
        return {p, static_cast<std::size_t>(end - p)};
    }
    // A decimal number as strtod reads it; anything else reads as 0. The rest of the word is
    // skipped either way, so one bad field does not shift the others.
    double Number() {
        SkipBlanks();
        const char* start = p;
        if (start < end && *start == '+') ++start;
        const char* q = start;
        if (q < end && *q == '-') ++q;
        double value = 0;
        if (q < end && (IsDigit(*q) || (*q == '.' && q + 1 < end && IsDigit(q[1])))) {
            if (FastDecimal(q, *start == '-', value)) {
                SkipWord();
                return value;
            }
            const auto result = std::from_chars(start, end, value);
            if (result.ec == std::errc::result_out_of_range) {
                // Out of range: strtod's answer, +-HUGE_VAL or 0.
                std::size_t used = 0;
                value = ReadLeadingNumber(
                    std::string_view(start, static_cast<std::size_t>(result.ptr - start)), used);
            } else if (result.ec != std::errc{}) {
                value = 0;
            }
            p = result.ptr;
        }
        SkipWord();
        return value;
    }
    // Most coordinates have a few digits and no exponent: with at most 15 digits the integer
    // they form is exact, and one division by an exact power of ten rounds correctly, so the
    // result is the same double the general parser gives. Anything else is left to it.
    bool FastDecimal(const char* q, bool negative, double& value) {
        static constexpr double kPowers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        std::uint64_t digits = 0;
        int count = 0;
        int decimals = 0;
        for (; q < end && IsDigit(*q); ++q, ++count) digits = digits * 10 + unsigned(*q - '0');
        if (q < end && *q == '.') {
            for (++q; q < end && IsDigit(*q); ++q, ++count, ++decimals) {
                digits = digits * 10 + unsigned(*q - '0');
            }
        }
        if (count > 15 || (q < end && (*q == 'e' || *q == 'E'))) return false;
        const double magnitude = static_cast<double>(digits) / kPowers[decimals];
        value = negative ? -magnitude : magnitude;
        p = q;
        return true;
    }
    // Hexadecimal RRGGBB as strtoul reads it, turned into a COLORREF.
    ColorRef Colour() {
        SkipBlanks();
        const ColorRef colour = ReadHexColour({p, static_cast<std::size_t>(end - p)});
        SkipWord();
        return colour;
    }
};

class Parser {
public:
    Parser(Document& document, bool paste) : document_(document), paste_(paste) {}

    // False when memory ran out; the document is then put back as it was.
    bool Run(std::string_view text);

private:
    Group& Container() {
        return open_.empty() ? static_cast<Group&>(document_.CurrentLayer()) : *open_.back();
    }
    GraphicObject* Insert(std::unique_ptr<GraphicObject> object);
    void EndPath(char letter);
    void PlaceIds(Fields& f);
    void RegisterAll();
    void Parse(std::string_view text);
    void Undo();
    // Returns false at RhombaEnd.
    bool Line(const char* begin, const char* end);

    Document& document_;
    bool paste_;
    NativeStyle style_;
    std::vector<Group*> open_;
    int flattened_ = 0; // groups opened beyond the depth limit and not yet closed
    // The open path's nodes gather here and go into the path in one piece at its paint letter,
    // so a path costs one exact allocation per array instead of a series of regrowths.
    bool pathOpen_ = false;
    std::vector<Point2> points_;
    std::vector<NodeType> types_;
    std::vector<GraphicObject*> pasted_;
    std::string pathName_;
    std::string textName_;

    struct Placement {
        std::uint32_t parent = 0;
        std::uint32_t index = 0;
        std::uint32_t id = 0;
        bool pending = false;
    } placement_;
    // Ids of the drawing, built on the first placement line only; every insertion after that
    // keeps it current, so a file full of placement lines costs no tree walks.
    std::unordered_map<std::uint32_t, GraphicObject*> ids_;
    bool idsBuilt_ = false;

    // What a failed parse takes back: every object inserted and every container it went into,
    // the layers made, and the current layer's name and flags, which a Layer line may change.
    std::vector<GraphicObject*> inserted_;
    std::vector<Group*> containers_;
    std::size_t layersBefore_ = 0;
    int currentBefore_ = 0;
    Layer* current_ = nullptr;
    std::string currentName_;
    std::uint32_t currentFlags_ = 0;
};

void Parser::RegisterAll() {
    idsBuilt_ = true;
    std::vector<GraphicObject*> work{&document_};
    while (!work.empty()) {
        GraphicObject* object = work.back();
        work.pop_back();
        ids_.emplace(object->GetId(), object);
        if (IsContainer(*object)) {
            const Group& group = static_cast<const Group&>(*object);
            for (std::size_t i = 0; i < group.ChildCount(); ++i) {
                if (GraphicObject* child = group.ChildAt(i)) work.push_back(child);
            }
        }
    }
}

GraphicObject* Parser::Insert(std::unique_ptr<GraphicObject> object) {
    Group* container = &Container();
    std::size_t index = container->ChildCount();
    std::uint32_t id = 0;
    if (placement_.pending) {
        placement_.pending = false;
        // The placement holds only for an id nobody has yet and a parent that is a container.
        if (placement_.id == 0 || ids_.find(placement_.id) == ids_.end()) {
            const auto parent = ids_.find(placement_.parent);
            if (parent != ids_.end() && IsContainer(*parent->second) &&
                parent->second->GetKind() != ObjectKind::Document) {
                container = static_cast<Group*>(parent->second);
                index = placement_.index;
                id = placement_.id;
            }
        }
    }
    if (containers_.empty() || containers_.back() != container) containers_.push_back(container);
    // The slot is made first, so that an object is never in the drawing without its record.
    inserted_.push_back(nullptr);
    GraphicObject* inserted = container->InsertAt(std::move(object), &document_, id, index);
    inserted_.back() = inserted;
    if (idsBuilt_ && inserted != nullptr) ids_.emplace(inserted->GetId(), inserted);
    if (paste_ && open_.empty() && inserted != nullptr) pasted_.push_back(inserted);
    return inserted;
}

void Parser::PlaceIds(Fields& f) {
    if (!idsBuilt_) RegisterAll();
    // Layers made since the ids were collected are the only containers not yet known.
    Layer& layer = document_.CurrentLayer();
    ids_.emplace(layer.GetId(), &layer);
    const auto read = [&f]() {
        const double v = f.Number();
        return v >= 0 && v <= 4294967295.0 ? static_cast<std::uint32_t>(v) : 0u;
    };
    placement_.parent = read();
    placement_.index = read();
    placement_.id = read();
    placement_.pending = true;
}

void Parser::EndPath(char letter) {
    if (!pathOpen_) return;
    pathOpen_ = false;
    if (points_.size() < 2) return;
    auto path = std::make_unique<PathObject>();
    path->ReserveNodes(points_.size());
    for (std::size_t i = 0; i < points_.size(); ++i) path->AddNode(points_[i], types_[i]);
    const bool fill = letter == 'B' || letter == 'F';
    const bool stroke = letter == 'B' || letter == 'S';
    path->SetFill(fill);
    path->SetFillColor(style_.fillColor);
    path->SetStroke(stroke);
    path->SetStrokeColor(style_.strokeColor);
    path->SetPenWidth(style_.penWidth);
    path->SetDashDot(style_.dash);
    path->SetName(std::move(pathName_));
    pathName_.clear();
    Insert(std::move(path));
}

bool Parser::Line(const char* begin, const char* end) {
    Fields f{begin, end};
    const std::string_view keyword = f.Word();
    if (keyword.empty()) return true;

    switch (keyword[0]) {
    case 'M':
    case 'L':
        if (keyword.size() == 1) {
            if (keyword[0] == 'M' && !pathOpen_) {
                pathOpen_ = true;
                points_.clear();
                types_.clear();
            }
            if (!pathOpen_) return true;
            const double x = f.Number();
            const double y = f.Number();
            points_.push_back({x, y});
            types_.push_back(keyword[0] == 'M' ? node::kMoveTo : node::kLineTo);
            return true;
        }
        if (keyword == "Layer") {
            const std::string_view flags = f.Word();
            const std::string_view name = f.Rest();
            // A new layer closes whatever groups were left open in the one before.
            open_.clear();
            flattened_ = 0;
            Layer& layer = document_.NewLayer(std::string(name), std::string(flags));
            if (idsBuilt_) ids_.emplace(layer.GetId(), &layer);
        }
        return true;
    case 'C':
        if (keyword.size() == 1) {
            if (!pathOpen_) return true;
            Point2 p[3];
            for (Point2& q : p) {
                q.x = f.Number();
                q.y = f.Number();
            }
            for (const Point2& q : p) {
                points_.push_back(q);
                types_.push_back(node::kBezierTo);
            }
        } else if (keyword == "ClosePath") {
            if (pathOpen_ && !types_.empty()) types_.back() |= node::kCloseFigure;
        }
        return true;
    case 'B':
    case 'F':
    case 'S':
    case 'N':
        if (keyword.size() == 1) {
            EndPath(keyword[0]);
        } else if (keyword == "StrokeColor") {
            style_.strokeColor = f.Colour();
        } else if (keyword == "FillColor") {
            style_.fillColor = f.Colour();
        }
        return true;
    case 'P':
        if (keyword == "PenWidth") {
            style_.penWidth = f.Number();
        } else if (keyword == "PenDash") {
            DashDot dash{};
            for (std::size_t i = 0; i < dash.size(); ++i) {
                f.SkipBlanks();
                if (f.p >= f.end) break;
                const double v = f.Number();
                dash[i] = static_cast<std::uint8_t>(v <= 0 || v != v ? 0 : v >= 255 ? 255 : v);
            }
            style_.dash = dash;
        } else if (keyword == "PathObject") {
            pathName_ = std::string(f.Rest());
        }
        return true;
    case 'T':
        if (keyword == "Text") {
            const std::string_view letter = f.Word();
            const double x = f.Number();
            const double y = f.Number();
            const std::string_view content = f.Rest();
            const char paint = letter.empty() ? 'N' : letter[0];
            auto text = std::make_unique<TextObject>();
            text->SetTextFont(style_.font);
            text->SetBold(style_.bold);
            text->SetItalic(style_.italic);
            text->SetTextSize(style_.textSize);
            text->SetTextTransform(style_.transform[0], style_.transform[1], style_.transform[2],
                                   style_.transform[3]);
            text->SetFill(paint == 'B' || paint == 'F');
            text->SetFillColor(style_.fillColor);
            text->SetStroke(paint == 'B' || paint == 'S');
            text->SetStrokeColor(style_.strokeColor);
            text->SetPenWidth(style_.penWidth);
            text->SetDashDot(style_.dash);
            text->SetTextPosition(x, y);
            text->SetText(std::string(content));
            text->SetName(std::move(textName_));
            textName_.clear();
            Insert(std::move(text));
        } else if (keyword == "TextObject") {
            textName_ = std::string(f.Rest());
        } else if (keyword == "TextFont") {
            const std::string_view flags = f.Word();
            style_.bold = flags.find('b') != std::string_view::npos;
            style_.italic = flags.find('i') != std::string_view::npos;
            style_.font = std::string(f.Rest());
        } else if (keyword == "TextSize") {
            style_.textSize = f.Number();
        } else if (keyword == "TextTransform") {
            for (double& v : style_.transform) v = f.Number();
        }
        return true;
    case 'G':
        if (keyword == "Group") {
            if (static_cast<int>(open_.size()) >= kMaxGroupDepth) {
                ++flattened_;
                return true;
            }
            auto group = std::make_unique<Group>();
            group->SetName(std::string(f.Rest()));
            GraphicObject* inserted = Insert(std::move(group));
            if (inserted != nullptr) open_.push_back(static_cast<Group*>(inserted));
        } else if (keyword == "GroupEnd") {
            // An end without an open group is ignored.
            if (flattened_ > 0) {
                --flattened_;
            } else if (!open_.empty()) {
                open_.pop_back();
            }
        }
        return true;
    case 'H':
        if (keyword == "Hotspot") {
            const std::string_view mode = f.Word();
            const std::string_view name = f.Word();
            double v[4];
            for (double& value : v) value = f.Number();
            auto hotspot = std::make_unique<Hotspot>();
            hotspot->SetMode(mode.empty() ? Hotspot::kDefaultMode : mode[0]);
            hotspot->SetName(std::string(name));
            hotspot->SetRect(v[0], v[1], v[2], v[3]);
            Insert(std::move(hotspot));
        }
        return true;
    case 'R':
        return keyword != "RhombaEnd";
    case '%':
        if (keyword == "%IDs") PlaceIds(f);
        return true;
    default:
        return true;
    }
}

bool Parser::Run(std::string_view text) {
    layersBefore_ = document_.LayerCount();
    currentBefore_ = document_.CurrentLayerIndex();
    try {
        // Fetching the current layer makes the first layer of an empty drawing; later items
        // fetch it again where they are inserted, so once before the first line is enough.
        current_ = &document_.CurrentLayer();
        currentName_ = current_->GetName();
        currentFlags_ = current_->GetFlags();
        Parse(text);
        // Selected once complete, so that a pasted group's flag reaches all of its children.
        for (GraphicObject* object : pasted_) document_.AddToSelection(object);
    } catch (const std::bad_alloc&) {
        Undo();
        return false;
    }
    return true;
}

void Parser::Parse(std::string_view text) {
    const char* p = text.data();
    const char* const end = p + text.size();
    // The next LF at or after p (end when there is none): a text whose lines end in lone CRs is
    // searched for it once, not once per line.
    const char* newline = nullptr;
    while (p < end) {
        // Lines end at LF, at CR LF, or at a lone CR (texts saved by old editors).
        if (newline == nullptr || newline < p) {
            const auto rest = static_cast<std::size_t>(end - p);
            newline = static_cast<const char*>(std::memchr(p, '\n', rest));
            if (newline == nullptr) newline = end;
        }
        const char* lineEnd = newline;
        if (const void* cr = std::memchr(p, '\r', static_cast<std::size_t>(lineEnd - p))) {
            lineEnd = static_cast<const char*>(cr);
        }
        if (!Line(p, lineEnd) || lineEnd == end) break;
        p = lineEnd + 1;
        if (p < end && lineEnd[0] == '\r' && *p == '\n') ++p;
    }
}

// Takes out what the parse put in, without allocating: memory has just run out.
void Parser::Undo() {
    if (paste_) document_.ClearSelection();
    std::erase(inserted_, nullptr);
    std::sort(inserted_.begin(), inserted_.end());
    const auto made = [this](const GraphicObject* object) {
        return std::binary_search(inserted_.begin(), inserted_.end(), object);
    };
    // Containers that the parse made go with their parent; only those that were there before
    // are searched, each once.
    std::sort(containers_.begin(), containers_.end());
    containers_.erase(std::unique(containers_.begin(), containers_.end()), containers_.end());
    std::erase_if(containers_, [&](const Group* container) {
        for (std::size_t i = layersBefore_; i < document_.LayerCount(); ++i) {
            if (&document_.LayerAt(i) == container) return true;
        }
        return made(container);
    });
    for (Group* container : containers_) container->EraseChildrenIf(made);
    document_.TruncateChildren(layersBefore_);
    document_.SetCurrentLayerIndex(currentBefore_);
    if (layersBefore_ > 0) {
        current_->SetName(std::move(currentName_));
        current_->SetFlags(currentFlags_);
    }
}

} // namespace

bool ParseNative(Document& document, std::string_view text, bool paste) {
    Parser parser(document, paste);
    return parser.Run(text);
}

bool StartsWithProductWord(std::string_view text) {
    if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
    if (text.substr(0, kProductWord.size()) != kProductWord) return false;
    if (text.size() == kProductWord.size()) return true;
    const char next = text[kProductWord.size()];
    return next == ' ' || next == '\t' || next == '\r' || next == '\n';
}

} // namespace rhomba

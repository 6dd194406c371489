// A metafile written by the export, read back record by record.
#include "cli/Cli.h"
#include "format/NativeReader.h"
#include "model/TextObject.h"
#include "render/DeviceCache.h"
#include "support/Paths.h"
#include "support/Reporters.h"
#include "support/TempFile.h"
#include "win32/EmfFile.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace rhomba::test {
namespace {

struct Records {
    std::set<DWORD> types;
    std::set<DWORD> penStyles;
    RECTL frame{};
};

int CALLBACK Collect(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) {
    auto& records = *reinterpret_cast<Records*>(data);
    records.types.insert(record->iType);
    if (record->iType == EMR_CREATEPEN) {
        records.penStyles.insert(reinterpret_cast<const EMRCREATEPEN*>(record)->lopn.lopnStyle);
    } else if (record->iType == EMR_EXTCREATEPEN) {
        records.penStyles.insert(reinterpret_cast<const EMREXTCREATEPEN*>(record)->elp.elpPenStyle);
    } else if (record->iType == EMR_HEADER) {
        records.frame = reinterpret_cast<const ENHMETAHEADER*>(record)->rclFrame;
    }
    return 1;
}

TEST(EmfExport, ConvertedByTheCliWithPathsPensAndText) {
    RestoreProcessStartDeviceState();
    Document document;
    auto* path = Add(document, NodePath({{{0, 0}, node::kMoveTo}, {{100, 0}, node::kLineTo},
                                         {{100, 50}, node::kBezierTo}, {{50, 100}, node::kBezierTo},
                                         {{0, 100}, node::kBezierTo | node::kCloseFigure}}));
    path->SetDashDot({3, 1, 0, 0, 0, 0, 0, 0});
    auto* text = Add(document, std::make_unique<TextObject>());
    text->SetText("Ma\xDF");
    text->SetTextPosition(10, 10);

    const TempFile drawing("rhomba-emf-test.rhomba", "", false);
    const TempFile file("rhomba-emf-test.emf", "", false);
    test::RecordingReporter reporter;
    ASSERT_TRUE(SaveNativeFile(document, drawing.path, reporter));
    std::ostringstream out, err;
    ASSERT_EQ(cli::Run({"convert", drawing.path, file.path}, out, err), 0) << err.str();
    EXPECT_EQ(err.str(), "");
    HENHMETAFILE emf = ::GetEnhMetaFileA(file.path.c_str());
    ASSERT_NE(emf, nullptr);
    Records records;
    ::EnumEnhMetaFile(nullptr, emf, Collect, &records, nullptr);
    ::DeleteEnhMetaFile(emf);

    // GDI stores curves with 16-bit coordinates when they fit.
    EXPECT_EQ(records.types.count(EMR_POLYBEZIERTO) + records.types.count(EMR_POLYBEZIERTO16), 1u);
    for (DWORD type : {EMR_BEGINPATH, EMR_ENDPATH, EMR_STROKEANDFILLPATH, EMR_MOVETOEX, EMR_LINETO,
                       EMR_CLOSEFIGURE, EMR_CREATEBRUSHINDIRECT, EMR_EXTCREATEFONTINDIRECTW,
                       EMR_EXTTEXTOUTW, EMR_SETMAPMODE, EMR_SETWINDOWEXTEX}) {
        EXPECT_EQ(records.types.count(type), 1u) << "record type " << type;
    }
    // The dash pen: Windows keeps it as an extended pen, Wine folds it into a plain pen record,
    // both with the geometric user style. Explicit segments, no PolyDraw, after the switch.
    EXPECT_EQ(records.penStyles.count(PS_GEOMETRIC | PS_USERSTYLE), 1u);
    EXPECT_EQ(records.types.count(EMR_POLYDRAW), 0u);
    // GDI's own frame around what was drawn.
    EXPECT_LT(records.frame.left, records.frame.right);
    EXPECT_LT(records.frame.top, records.frame.bottom);

    reporter.messages.clear();
    const std::string nowhere = "Q:\\kein\\Ordner\\da\\x.emf";
    EXPECT_FALSE(WriteEmfFile(document, nowhere, nullptr, reporter));
    EXPECT_EQ(reporter.messages,
              std::vector<std::string>{nowhere + " konnte nicht zum Schreiben ge\xF6"
                                                 "ffnet werden."});
    RestoreProcessStartDeviceState();
}

} // namespace
} // namespace rhomba::test

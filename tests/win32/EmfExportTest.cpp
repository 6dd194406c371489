// A metafile written by the export, read back record by record.
#include "cli/Cli.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "model/TextObject.h"
#include "render/DeviceCache.h"
#include "support/Reporters.h"
#include "win32/EmfFile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace rhomba {
namespace {

using test::RecordingReporter;

struct Records {
    std::set<DWORD> types;
    std::set<DWORD> penStyles;
    RECTL frame{};
};

int CALLBACK Collect(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) {
    auto* records = reinterpret_cast<Records*>(data);
    records->types.insert(record->iType);
    if (record->iType == EMR_CREATEPEN) {
        records->penStyles.insert(reinterpret_cast<const EMRCREATEPEN*>(record)->lopn.lopnStyle);
    } else if (record->iType == EMR_EXTCREATEPEN) {
        records->penStyles.insert(reinterpret_cast<const EMREXTCREATEPEN*>(record)->elp.elpPenStyle);
    }
    if (record->iType == EMR_HEADER) {
        records->frame = reinterpret_cast<const ENHMETAHEADER*>(record)->rclFrame;
    }
    return 1;
}

std::string TempPath(const char* name) {
    char dir[MAX_PATH] = {};
    ::GetTempPathA(MAX_PATH, dir);
    return std::string(dir) + name;
}

TEST(EmfExport, ConvertedByTheCliWithPathsPensAndText) {
    RestoreProcessStartDeviceState();
    Document document;
    auto path = std::make_unique<PathObject>();
    path->AddNode({0, 0}, node::kMoveTo);
    path->AddNode({100, 0}, node::kLineTo);
    path->AddNode({100, 50}, node::kBezierTo);
    path->AddNode({50, 100}, node::kBezierTo);
    path->AddNode({0, 100}, node::kBezierTo | node::kCloseFigure);
    path->SetDashDot({3, 1, 0, 0, 0, 0, 0, 0});
    document.AddObject(std::move(path));
    auto text = std::make_unique<TextObject>();
    text->SetText("Ma\xDF");
    text->SetTextPosition(10, 10);
    document.AddObject(std::move(text));

    const std::string drawing = TempPath("rhomba-emf-test.rhomba");
    const std::string file = TempPath("rhomba-emf-test.emf");
    test::RecordingReporter reporter;
    ASSERT_TRUE(SaveNativeFile(document, drawing, reporter));
    std::ostringstream out, err;
    ASSERT_EQ(cli::Run({"convert", drawing, file}, out, err), 0) << err.str();
    EXPECT_EQ(err.str(), "");
    std::remove(drawing.c_str());

    HENHMETAFILE emf = ::GetEnhMetaFileA(file.c_str());
    ASSERT_NE(emf, nullptr);
    Records records;
    ::EnumEnhMetaFile(nullptr, emf, Collect, &records, nullptr);
    ::DeleteEnhMetaFile(emf);
    std::remove(file.c_str());

    std::string seen;
    for (DWORD type : records.types) seen += std::to_string(type) + ' ';
    // GDI stores curves with 16-bit coordinates when they fit.
    EXPECT_EQ(records.types.count(EMR_POLYBEZIERTO) + records.types.count(EMR_POLYBEZIERTO16), 1u)
        << seen;
    for (DWORD type : {EMR_BEGINPATH, EMR_ENDPATH, EMR_STROKEANDFILLPATH, EMR_MOVETOEX,
                       EMR_LINETO, EMR_CLOSEFIGURE,
                       EMR_CREATEBRUSHINDIRECT, EMR_EXTCREATEFONTINDIRECTW, EMR_EXTTEXTOUTW,
                       EMR_SETMAPMODE, EMR_SETWINDOWEXTEX}) {
        EXPECT_EQ(records.types.count(type), 1u) << "record type " << type << " in " << seen;
    }
    // The dash pen: Windows keeps it as an extended pen, Wine folds it into a plain pen record,
    // both with the geometric user style.
    EXPECT_EQ(records.penStyles.count(PS_GEOMETRIC | PS_USERSTYLE), 1u) << seen;
    EXPECT_EQ(records.types.count(EMR_POLYDRAW), 0u) << "explicit segments after the switch";
    // GDI's own frame around what was drawn.
    EXPECT_LT(records.frame.left, records.frame.right);
    EXPECT_LT(records.frame.top, records.frame.bottom);
    RestoreProcessStartDeviceState();
}

TEST(EmfExport, UnwritablePathIsReported) {
    Document document;
    RecordingReporter reporter;
    const std::string file = "Q:\\kein\\Ordner\\da\\x.emf";
    EXPECT_FALSE(WriteEmfFile(document, file, nullptr, reporter));
    ASSERT_EQ(reporter.messages.size(), 1u);
    EXPECT_EQ(reporter.messages[0], file + " konnte nicht zum Schreiben ge\xF6" "ffnet werden.");
    RestoreProcessStartDeviceState();
}

} // namespace
} // namespace rhomba

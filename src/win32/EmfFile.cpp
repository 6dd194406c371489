#include "win32/EmfFile.h"
#include "win32/EmfFileWriter.h"

#include "export/EmfExport.h"
#include "export/ExportFileName.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "win32/GdiDevice.h"

#include <commdlg.h>

#include <cstring>

namespace rhomba {

bool WriteEmfFile(Document& document, const std::string& path, HWND window, Reporter& reporter) {
    HDC reference = ::GetDC(window);
    // No frame rectangle: GDI works the frame out from what is drawn.
    HDC metafile = ::CreateEnhMetaFileA(reference, path.c_str(), nullptr, "Rhomba\0\0");
    bool written = false;
    if (metafile == nullptr) {
        InformCannotWrite(reporter, path);
    } else {
        GdiDevice device(metafile);
        RenderEmf(device, document);
        HENHMETAFILE handle = ::CloseEnhMetaFile(metafile);
        written = handle != nullptr;
        if (handle != nullptr) ::DeleteEnhMetaFile(handle);
    }
    ::ReleaseDC(window, reference);
    return written;
}

void ExportEmfCommand(HWND owner, Document& document, Reporter& reporter) {
    char file[261] = {};
    const std::string proposal = ProposeExportFileName(document.GetFileName(), "emf");
    std::strncpy(file, proposal.c_str(), sizeof file - 1);
    static const char kFilter[] =
        "Enhanced-Metafile-Dateien *.emf\0*.emf\0Alle Dateien *.*\0*.*\0";
    OPENFILENAMEA ofn{};
    ofn.lStructSize = sizeof ofn;
    ofn.hwndOwner = owner;
    ofn.lpstrFilter = kFilter;
    ofn.nFilterIndex = 1;
    ofn.lpstrFile = file;
    ofn.nMaxFile = sizeof file;
    ofn.Flags = 0x802;  // overwrite prompt, path must exist
    if (!::GetSaveFileNameA(&ofn)) return;
    WriteEmfFile(document, CompleteExportFileName(file, "emf"), owner, reporter);
}

} // namespace rhomba

namespace rhomba {

bool ExportEmfFile(Document& document, const std::string& path, Reporter& reporter) {
    return WriteEmfFile(document, path, nullptr, reporter);
}

} // namespace rhomba

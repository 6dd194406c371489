#include "win32/EmfFile.h"
#include "win32/EmfFileWriter.h"

#include "export/EmfExport.h"
#include "export/ExportFileName.h"
#include "format/FileWrite.h"
#include "model/Document.h"
#include "model/Reporter.h"
#include "win32/GdiDevice.h"

#include <commdlg.h>

#include <cstring>
#include <new>
#include <string>

namespace rhomba {

bool WriteEmfFile(Document& document, const std::string& path, HWND window, Reporter& reporter) {
    // Drawn in memory, then written like every other file: to a temporary file renamed over the
    // target, so that a failure never leaves half a picture in place of the old one.
    HDC reference = ::GetDC(window);
    // No frame rectangle: GDI works the frame out from what is drawn.
    HDC metafile = ::CreateEnhMetaFileA(reference, nullptr, nullptr, "Rhomba\0\0");
    ::ReleaseDC(window, reference);
    if (metafile == nullptr) {
        InformCannotWrite(reporter, path);
        return false;
    }
    std::string bytes;
    bool drawn = true;
    try {
        GdiDevice device(metafile);
        RenderEmf(device, document);
    } catch (const std::bad_alloc&) {
        drawn = false;
    }
    HENHMETAFILE handle = ::CloseEnhMetaFile(metafile);
    if (handle == nullptr) {
        InformCannotWrite(reporter, path);
        return false;
    }
    const UINT size = ::GetEnhMetaFileBits(handle, 0, nullptr);
    try {
        if (drawn) bytes.resize(size);
    } catch (const std::bad_alloc&) {
        drawn = false;
    }
    if (drawn) ::GetEnhMetaFileBits(handle, size, reinterpret_cast<BYTE*>(bytes.data()));
    ::DeleteEnhMetaFile(handle);
    if (!drawn) {
        InformOutOfMemory(reporter, size);
        return false;
    }
    return WriteFileSafely(path, bytes, reporter);
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

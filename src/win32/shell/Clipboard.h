#pragma once

#include "format/Clipboard.h"

#include <optional>
#include <string>

#include <windows.h>

namespace rhomba {

// The clipboard's text as paste reads it: Unicode text first, 8-bit text second; no value when
// the clipboard holds no text or cannot be read.
std::optional<ClipboardText> ReadClipboardText(HWND owner);

// Puts a copied drawing on the clipboard: its native text through the hidden copy field, and
// beside it the same objects as an enhanced metafile, so that other programs paste a picture.
void WriteClipboardDrawing(HWND owner, HWND copyField, const std::string& nativeText);

} // namespace rhomba

#include "res/DocumentStrings.h"

#include "res/StringIds.h"

namespace keltavlo {

namespace {

constexpr StringRow rows[] = {
    {IDS_UNDO_NAMED, "&Undo %s\tCtrl+Z"},
    {IDS_REDO_NAMED, "&Redo %s\tCtrl+Y"},
    {IDS_UNDO, "&Undo\tCtrl+Z"},
    {IDS_REDO, "&Redo\tCtrl+Y"},
    {IDS_CANNOT_UNDO, "Can't &Undo\tCtrl+Z"},
    {IDS_CANNOT_REDO, "Can't &Redo\tCtrl+Y"},
    {IDS_ACTION_REFORMAT, "Reformating for File Save"},
    {IDS_ACTION_PASTE, "Paste"},
    {IDS_ACTION_RESIZE, "Resize"},
    {IDS_ACTION_QUAKE_NAME, "Quake Name"},
    {IDS_ACTION_QUAKE2_NAME, "Quake II Name"},
    {IDS_ACTION_QUAKE2_SURFACE, "Quake II Surface"},
    {IDS_ACTION_QUAKE2_CONTENTS, "Quake II Contents"},
    {IDS_ACTION_QUAKE2_VALUE, "Quake II Value"},
    {IDS_ACTION_NEAREST, "Nearest Color"},
    {IDS_ACTION_DITHER, "Error Diffusion Dithering"},
    {IDS_ACTION_RELOAD, "Reload"},
    {IDS_PARENTHESES, "(%s)"},
    {IDS_NONE, "None"},
    {IDS_WORKING, "Working..."},
    {IDS_READING_DIRECTORY, "Reading Directory..."},
    {IDS_READING_FILES, "Reading Files..."},
    {IDS_CANNOT_BE_WRITTEN, "%s cannot be written."},
    // Window title, document name, new-file name, filter name, filter extension, registry type id and name.
    {IDR_BITMAP, "\nbitmap\nBitmap\nBitmap Files (*.bmp)\n.bmp\nBitmap.Image\nBitmap Image"},
    {IDR_MIPMAP, "\nmipmap\nMipmap\nQuake Texture Files (*.mip)\n.mip\nMipmap.Image\nMipmap Image"},
    {IDR_PCX, "\npcx\nPCX\nPaintbrush Image Files (*.pcx)\n.pcx\nPaintbrush.Image\nPaintbrush Image"},
    {IDR_TARGA, "\ntarga\nTarga\nTarga Files (*.tga)\n.tga\nTarga.Image\nTarga Image"},
    {IDR_WAL, "\nwal\nWal\nQuake II Texture Files (*.wal)\n.wal\nWal.Image\nWal Image"},
    {IDR_PAK, "\n\n\nQuake Pack Files (*.pak)\n.pak\n\n"},
    {IDR_WAD, "\n\n\nQuake WAD Files (*.wad)\n.wad\n\n"},
    {IDR_LMP, "\n\n\nQuake II Palette Files (*.lmp)\n.lmp\n\n"},
    {IDR_BRUSH, "\n\n\nKelTavlo Brush Files (*.kelbrush)\n.kelbrush\n\n"},
    {IDR_MD2, "\n\n\nQuake II Model Files (*.md2)\n.md2\n\n"},
    {IDR_MDL, "\n\n\nQuake Model Files (*.mdl)\n.mdl\n\n"},
    {IDR_COLOR_SPACE, "\n\n\nKelTavlo Color Space Files (*.kelcolorspace)\n.kelcolorspace\n\n"},
    {IDR_RESOURCES, "\n\n\nEXE Files (*.exe)\n.exe\n\n"},
    {IDR_COLOR_TABLE, "\n\n\nKelTavlo Color Table Files (*.kelcolors)\n.kelcolors\n\n"},
    {IDR_PK3, "\n\n\nQuake III Pack Files (*.pk3)\n.pk3\n\n"},
    {IDR_ZIP, "\n\n\nZIP Archives (*.zip)\n.zip\n\n"},
    {IDR_BSP, "\n\n\nQuake Map Files (*.bsp)\n.bsp\n\n"},
};

} // namespace

std::span<const StringRow> DocumentStrings() {
    return rows;
}

} // namespace keltavlo

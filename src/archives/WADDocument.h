#pragma once

#include "archives/FolderDocument.h"

// A Quake or Half-Life texture archive (".wad") as a folder. Read only.
class WADDocument final : public Dynamic<"WADDocument", WADDocument, FolderDocument> {};

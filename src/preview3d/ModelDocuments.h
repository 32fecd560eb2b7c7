#pragma once

#include "resources/BaseDocument.h"

// Models of the games.

// A Quake model (".mdl").
class MDLDocument final : public Dynamic<"MDLDocument", MDLDocument, BaseDocument> {};

// A Quake II model (".md2").
class MD2Document final : public Dynamic<"MD2Document", MD2Document, BaseDocument> {};

#pragma once

#include "image/TavloDocument.h"

namespace keltavlo {

// One class for each picture format. The classes differ in what File New makes.

// A new document is 64 x 64 with all pixels 0.
class FormatDocument : public Dynamic<"FormatDocument", FormatDocument, TavloDocument> {
public:
    bool OnNewDocument() override;
};

class BMPDocument final : public Dynamic<"BMPDocument", BMPDocument, FormatDocument> {};
class PCXDocument final : public Dynamic<"PCXDocument", PCXDocument, FormatDocument> {};
class TGADocument final : public Dynamic<"TGADocument", TGADocument, FormatDocument> {};

// In a new document, the built-in palette of its game is selected.
class MIPDocument final : public Dynamic<"MIPDocument", MIPDocument, FormatDocument> {
public:
    bool OnNewDocument() override;
};
class WALDocument final : public Dynamic<"WALDocument", WALDocument, FormatDocument> {
public:
    bool OnNewDocument() override;
};

} // namespace keltavlo

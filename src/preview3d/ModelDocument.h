#pragma once

#include "resources/BaseDocument.h"

namespace keltavlo {

// Base of the documents that are shown in 3D.
class ThreeDimensionalDocument
    : public Dynamic<"ThreeDimensionalDocument", ThreeDimensionalDocument, BaseDocument> {};

// Base of the games' models, which cannot be saved.
class ModelDocument : public Dynamic<"ModelDocument", ModelDocument, ThreeDimensionalDocument> {};

} // namespace keltavlo

#pragma once

#include "resources/BaseDocument.h"

namespace keltavlo {

// Base of the documents that are shown in space.
class ThreeDimensionalDocument
    : public Dynamic<"ThreeDimensionalDocument", ThreeDimensionalDocument, BaseDocument> {};

// Base of the models of the games. They cannot be saved.
class ModelDocument : public Dynamic<"ModelDocument", ModelDocument, ThreeDimensionalDocument> {};

} // namespace keltavlo

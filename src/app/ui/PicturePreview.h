#pragma once

#include "archives/ui/PreviewPanel.h"

namespace keltavlo {

// The picture of that path as views show it, with its size and its type; or why there is none.
Preview ReadPicturePreview(const std::string& path);

} // namespace keltavlo

#pragma once

namespace keltavlo {

class CWinApp;

// Adds the program's fourteen document types, in their order.
void RegisterDocumentTypes(CWinApp& application);

} // namespace keltavlo

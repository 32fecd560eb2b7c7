#pragma once

class CWinApp;

// Adds the program's fourteen document types, in their order.
void RegisterDocumentTypes(CWinApp& application);

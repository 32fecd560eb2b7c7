#pragma once

namespace keltavlo {

class CWinApp;

// Adds the archives that only the command-line tool reads: ".pk3", ".zip" and ".bsp".
void RegisterArchiveTypes(CWinApp& application);

} // namespace keltavlo

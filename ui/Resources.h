#pragma once

/// Registers the program's pictures, which are compiled into a static library. Call before the first window is made.
void LoadVantoriumResources();

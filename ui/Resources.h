#pragma once

/// Makes the pictures of the program available, which lie in a static library. Called before the first window is made.
void LoadVantoriumResources();

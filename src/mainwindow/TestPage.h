// The page that shows how reports come out.
#pragma once

/// Prints it in the present settings, as one document.
void PrintTestPage();

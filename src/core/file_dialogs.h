// The system's dialogs behind the File menu. They do not stop the program: it goes on answering while they stand there.
#pragma once

class QWidget;

namespace nimb
{

/// Asks for a file; the choice has no use so far.
void showFileOpen(QWidget &parent);
void showPageSetup(QWidget &parent);

} // namespace nimb

// Asks where a log is to be saved or printed, and does it.
#pragma once

namespace nimb
{

class RichTextLogEdit;

/// The dialogs belong to the log's window and do not stop the program; what they do concerns the log as it is when they
/// end. What goes wrong is said in a box.
void askWhereToSave(RichTextLogEdit &log);
void askHowToPrint(RichTextLogEdit &log);

} // namespace nimb

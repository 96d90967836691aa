// A row of a list that flashes for a moment.
#pragma once

class QModelIndex;
class QTreeView;

namespace nimb
{

/// Paints the row in the colour of the selection three times, fading, and follows it where it moves. A row that flashes
/// already begins anew.
void flashRow(QTreeView &list, const QModelIndex &row);

} // namespace nimb

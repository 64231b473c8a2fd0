#pragma once

namespace TARN {

/// Pieces of work of the whole program that are under way or wait for their turn.
int pendingWork();

/// Changes their count.
void countPendingWork(int difference);

} // namespace TARN

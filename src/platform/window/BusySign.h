#pragma once

/// A quiet strip that moves at the foot of the window in front, drawn at once as no events run; see `LongWork`.
void showBusySign(bool working);

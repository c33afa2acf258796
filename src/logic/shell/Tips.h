// The tips of the day, from data/tips.txt: texts of one paragraph each, which only frm_OMKtod reads. Their order
// matters, because "Next Tip" shows only the first 81.
#pragma once

#include <span>

/// All 94 tips. Tip number N, counted from 1, is at N - 1.
std::span<const char *const> tips();

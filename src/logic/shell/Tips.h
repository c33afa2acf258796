// The tips of the day, from data/tips.txt: constant texts of one paragraph, read by frm_OMKtod alone. Their order
// holds, since "Next Tip" reaches only the first of them.
#pragma once

#include <span>

/// All 94; the tip of number N, counted from 1, is at N - 1.
std::span<const char *const> tips();

// Offers charts to screen readers as tables: a row for each row of the chart, a column for each column. A cell is named
// like the tool tip of its value, so that a reader tells the date, the measurement and the value whichever way it
// arrives. Only the chart uses it.
#pragma once

/// Registers the tables with Qt; later calls do nothing.
void OfferChartsAsTables();

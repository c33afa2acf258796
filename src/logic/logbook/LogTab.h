// The three logs, by the tab of the logbook that each is on.
#pragma once

enum LogTab { WaterTab = 0, LivestockTab = 1, MaintenanceTab = 2 };

// Sample data for pictures and measurements: tanks with water tests as a keeper would log them. Every call makes the
// same data.
#pragma once

#include <QDate>
#include <QString>

class Database;

/// Adds a tank and returns its tankid. `waterType` is a value of TANKLST.TankWaterType.
QString AddSampleTank(Database &database, const QString &name, const QString &description, int gallons,
                      const QString &waterType, const QString &notes);

/// Adds `count` water tests, `minutesApart`, from the first day on at nine in the morning: those of a new tank that
/// cycles within a month and has its water changed on Saturdays. One transaction.
void AddSampleWaterTests(Database &database, const QString &tankId, int count, const QDate &firstDay, int minutesApart,
                         bool salt);

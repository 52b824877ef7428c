#pragma once

#include <QByteArray>

namespace vanzer::fuzz {

/// Reads a route list, and again with other line ends.
void readRoutePackage(const QByteArray& input);

/// Reads a stop file and folds a route down to its stops, some of whose names are the route's.
void readStopFile(const QByteArray& input);

} // namespace vanzer::fuzz

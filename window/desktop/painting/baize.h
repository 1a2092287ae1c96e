// The cloth on which the cards lie.
#pragma once

#include <QPixmap>
#include <QSize>

// Cloth for a board of that size: lit in the middle, darker towards the edges, with a fine grain.
QPixmap Baize(QSize size, double scale);

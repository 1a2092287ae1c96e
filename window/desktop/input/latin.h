// Keys on layouts where Latin letters or plain digits can't be had by one stroke.
#pragma once

#include <QObject>

class QKeyEvent;

// The letter, digit or minus that the key has on the Latin layout, by its place; 0 for any other key.
char LatinAt(const QKeyEvent& key);

// Where the layout has other letters, access keys and shortcuts go by the place of the key.
class LatinKeys : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// The controls that are widgets of their own: buttons, boxes, lists.
#pragma once

#include "window/form.h"

class Deeds;
class QWidget;

// Whether controls of this kind are widgets.
bool IsNative(Control::Kind kind);
// Makes the widget of a control, shows the control's state in it, and lets it tell what the player does with
// it.
QWidget* MakeNative(Visual& control, Deeds& deeds, QWidget* parent);
// Shows a changed property in the widget.
void ApplyNative(QWidget& widget, const Visual& control, Prop prop);
// The program has other colours.
void RestyleNative(QWidget& widget, const Visual& control);
// The board has another zoom: place and letters follow it.
void ZoomNative(QWidget& widget, const Visual& control);

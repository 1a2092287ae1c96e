// Whether somebody manages windows: gives them frames, and makes them as large as the screen when they ask
// for that state.
#pragma once

bool WindowsAreManaged();

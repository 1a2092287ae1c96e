// Whether somebody manages windows: gives them frames, and makes them as large as the screen when they ask
// for that state.
#pragma once

bool WindowsAreManaged();
// Whether windows know where they stand, and may choose it. Where they don't, what the toolkit tells of it
// isn't so.
bool WindowsHavePlaces();

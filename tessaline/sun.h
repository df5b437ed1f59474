#pragma once

// The sun of the open model, on its way to the renderer: through the settings into the option file.

// Stores where the sun stands and where and when that is. The angles are radians: the azimuth from the model's x axis
// towards its y axis, whatever the north of the model, the altitude above the ground. What the model does not say is
// stored as 0.
void read_sun();

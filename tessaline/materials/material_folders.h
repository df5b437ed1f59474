#pragma once

// The two folders into which materials go.

// Makes them, and the run's paths to them, unless that was done before in this process. A folder that cannot be made is
// no failure here; later writes into it fail on their own.
void ready_material_folders();

#pragma once

// What the open model itself says about the run.

// Goes through the model's own attribute dictionaries: "qlw_globals" holds settings, "Zyn_Ground_Plane" the material of
// the ground plane, which is restored unless a file of it lies there already.
void apply_model_dictionaries();

// Whether the model shows its faces in the colours of their layers.
void read_color_by_layer();

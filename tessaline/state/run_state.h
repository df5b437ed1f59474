#pragma once

// All that changes process-wide while the program runs. A process makes one run, and the code that walks the model,
// numbers its materials and writes its lamps is spread over many files that all reach the same tables; passing each
// through every call would hide that there is exactly one of each. Nothing else in the program is mutable at namespace
// scope, but for the settings table and the trace, which are one object each in their own room.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/state/application.h"
#include "tessaline/state/attribute_record.h"
#include "tessaline/state/edge_record.h"
#include "tessaline/state/layer_table.h"
#include "tessaline/state/material_record.h"
#include "tessaline/state/random_sequence.h"
#include "tessaline/state/slp_oparms.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

class cl_skp_progress_dlg;

// ---- the process

// The paths and flags of the run: they come from the command line, ahead of everything else, and are read everywhere.
extern CTessalineApp theApp;

// The dialog that shows the run, null while there is none. Process-wide because the walk reports a percentage and
// knows nothing of the dialog.
extern cl_skp_progress_dlg* progress_dialog;

// ---- the open model; both invalid while no model is open

// Process-wide because settings, views and Skatter lines ask the model itself, from anywhere in the walk.
extern SUModelRef open_model;
// Process-wide because faces, materials and pictures must all ask the one writer that knows every texture.
extern SUTextureWriterRef texture_writer;

// ---- tables of one reading; process-wide because several concerns fill and read them

extern layer_table layers;                                     // in the model's order
extern std::vector<cl_tsl_attribute> attribute_list;           // of the last entity read, and only of that
extern std::vector<cl_tsl_edge> edge_records;                  // outlive the model: written when it is closed
extern std::vector<cl_tsl_material> material_records;          // index = material number - 10
extern std::unordered_map<std::int32_t, int> material_id_map;  // entity id of a material to index of its last record
extern std::unordered_map<std::string, int> material_name_map; // file name, and working name, to index

// ---- parameters of the walk; process-wide because every level of the walk, down to the face, reads the top record

extern cl_oparms_array oparms_array;
extern cl_slp_oparms* current_oparms; // the top record; null before the first walk

// ---- flags and folders that belong to the process and not to a reading

extern bool material_folders_ready;      // the two paths below are made; stays set for a second reading
extern std::string material_folder_path; // where material files go
extern std::string texture_folder_path;  // where pictures go
extern bool in_skatter_instances;        // the walk is inside scattered components, whose materials are named otherwise
extern bool skatter_counted;             // the counting pass takes the scattered components once in a process
extern random_sequence plant_chance;     // goes on through all readings, as nothing ever starts it anew
extern bool block_seen;                  // a block has opened; the next one is preceded by a close

// Clears what every reading starts without: layers, attributes, materials with their maps, and edges. The parameter
// records and the flags stay: a second reading in a process goes on where the first ended.
void begin_reading();

// Everything as at the start of the process, for tests and fuzzing. The open model, if any, is forgotten and not
// closed; the settings and the trace are not touched.
void reset_process();

#pragma once

// The folders of a run, inside the batch folder.

// Makes them and empties those that hold results only. Plants, images and two kept material files stay from run to run.
// A folder that cannot be made is no failure here; later writes into it fail on their own. Fills the folder names of
// theApp that are empty.
void prepare_batch_folders();

#pragma once

// The picture of a textured material, written where the renderer finds it.

#include "sketchup/SketchUpAPI.h"

#include <string>

struct exported_texture {
    std::string image_path; // full name that was tried last, whether or not a file came of it; empty if none was tried
    double tile_x = 0;      // repetitions of the picture in an inch; 0 if the texture's size cannot be told
    double tile_y = 0;
};

// Writes the texture's picture into the texture folder of the run, as "TX0007_Brick.JPG", in the format of the
// extension of the file that it was once made from, in capitals; PSD and TIF become PNG. What cannot be written so is
// written as "TX0012.jpg". A picture of no pixels, or of more than 8192 x 8192, is left out. Nothing is reported.
// face, is_front: the side that needs the picture. not_affine: the side's texture is distorted, and the picture is the
// straightened one, by way of the run's texture writer.
// number: in the usual name, the texture's or the material's. material_id: in the other name. encoded_name: the
// material's name as url_encode_name gives it. One that would lead out of the folder counts as one that cannot be
// written.
exported_texture export_material_texture(SUTextureRef texture, SUFaceRef face, bool is_front, bool not_affine,
                                         int number, int material_id, const std::string& encoded_name);

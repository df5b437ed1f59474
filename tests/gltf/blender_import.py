"""Imports GLB files into Blender and compares what it has then with what the files say: triangles, lines, pictures,
materials and the box of all. Status 0 if all agree.

    blender -b --factory-startup --python-exit-code 1 --python blender_import.py -- FILE...
"""

import json
import struct
import sys

import bpy
import numpy
from mathutils import Matrix, Quaternion, Vector

numpy.bool = bool  # the importer of this Blender asks for a name that newer numpys have no more


class Glb:
    """A file read by its own layout."""

    def __init__(self, name):
        with open(name, "rb") as file:
            data = file.read()
        size = struct.unpack_from("<I", data, 12)[0]
        self.json = json.loads(data[20:20 + size])
        self.bin = data[28 + size:]

    def numbers(self, at):
        accessor = self.json["accessors"][at]
        kind = {5126: numpy.float32, 5123: numpy.uint16, 5125: numpy.uint32}[accessor["componentType"]]
        width = {"SCALAR": 1, "VEC2": 2, "VEC3": 3}[accessor["type"]]
        offset = self.json["bufferViews"][accessor["bufferView"]]["byteOffset"]
        found = numpy.frombuffer(self.bin, kind, accessor["count"] * width, offset)
        return found.reshape(-1, width) if width > 1 else found

    def figures(self):
        """Triangles and lines of the meshes, pictures in use, materials in use, and the two corners of the placed whole,
        z up."""
        triangles = lines = 0
        for mesh in self.json.get("meshes", []):
            for primitive in mesh["primitives"]:
                count = self.json["accessors"][primitive["indices"]]["count"]
                if primitive.get("mode", 4) == 1:
                    lines += count // 2
                else:
                    triangles += count // 3
        points = []
        self.place(self.json["scenes"][0]["nodes"][0], Matrix(((1, 0, 0, 0), (0, 0, -1, 0), (0, 1, 0, 0), (0, 0, 0, 1))), points)
        pictures = {texture["source"] for texture in self.json.get("textures", [])}
        # A material of lines alone is none for Blender's importer, which gives loose edges no material.
        materials = {primitive["material"] for mesh in self.json.get("meshes", []) for primitive in mesh["primitives"]
                     if primitive.get("mode", 4) == 4}
        return triangles, lines, len(pictures), len(materials), box_of(points)

    def place(self, at, parent, points):
        node = self.json["nodes"][at]
        x, y, z, w = node.get("rotation", (0, 0, 0, 1))
        matrix = parent @ Matrix.LocRotScale(Vector(node.get("translation", (0, 0, 0))), Quaternion((w, x, y, z)),
                                             Vector(node.get("scale", (1, 1, 1))))
        if "mesh" in node:
            for primitive in self.json["meshes"][node["mesh"]]["primitives"]:
                points.append(placed(self.numbers(primitive["attributes"]["POSITION"]), matrix))
        for child in node.get("children", []):
            self.place(child, matrix, points)


def placed(points, matrix):
    m = numpy.array(matrix, dtype=numpy.float64)
    return points.astype(numpy.float64) @ m[:3, :3].T + m[:3, 3]


def box_of(points):
    if not points:
        return None
    every = numpy.concatenate(points)
    return every.min(axis=0), every.max(axis=0)


def seen_by_blender(name):
    bpy.ops.wm.read_factory_settings(use_empty=True)
    bpy.ops.import_scene.gltf(filepath=name)
    triangles = lines = 0
    for mesh in bpy.data.meshes:
        mesh.calc_loop_triangles()
        triangles += len(mesh.loop_triangles)
        used = {tuple(sorted(key)) for polygon in mesh.polygons for key in polygon.edge_keys}
        lines += sum(1 for edge in mesh.edges if tuple(sorted(edge.vertices)) not in used)
    points = []
    for thing in bpy.data.objects:
        if thing.type == "MESH" and thing.data.vertices:
            flat = numpy.empty(3 * len(thing.data.vertices), numpy.float32)
            thing.data.vertices.foreach_get("co", flat)
            points.append(placed(flat.reshape(-1, 3), thing.matrix_world))
    pictures = [image for image in bpy.data.images if image.source == "FILE" and image.users > 0]
    materials = {mesh.materials[polygon.material_index].name for mesh in bpy.data.meshes for polygon in mesh.polygons}
    return triangles, lines, len(pictures), len(materials), box_of(points)


def agree(file, blender):
    *counts, box = file
    *found, seen = blender
    if counts != found:
        return False
    if box is None or seen is None:
        return box is None and seen is None
    size = max(numpy.abs(box).max(), 1)
    return numpy.abs(numpy.array(box) - numpy.array(seen)).max() <= 1e-5 * size


def main():
    names = sys.argv[sys.argv.index("--") + 1:]
    faults = 0 if names else 1
    for name in names:
        file, blender = Glb(name).figures(), seen_by_blender(name)
        if not agree(file, blender):
            faults += 1
            print(f"FAULT {name}: the file has {file}, Blender {blender}")
    print(f"{len(names)} files in Blender: {faults} faults")
    if faults:
        raise SystemExit(1)


main()

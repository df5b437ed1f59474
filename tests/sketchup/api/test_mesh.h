#pragma once

#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

// The mesh of a face; released at the end of its scope.
struct test_mesh {
    explicit test_mesh(SUFaceRef face) { EXPECT_EQ(SUMeshHelperCreate(&ref, face), SU_ERROR_NONE); }
    test_mesh(SUFaceRef face, SUUVHelperRef helper) {
        EXPECT_EQ(SUMeshHelperCreateWithUVHelper(&ref, face, helper), SU_ERROR_NONE);
    }
    test_mesh(SUFaceRef face, SUTextureWriterRef writer) {
        EXPECT_EQ(SUMeshHelperCreateWithTextureWriter(&ref, face, writer), SU_ERROR_NONE);
    }
    test_mesh(const test_mesh&) = delete;
    test_mesh& operator=(const test_mesh&) = delete;
    ~test_mesh() { SUMeshHelperRelease(&ref); }

    std::vector<sketchup::vec3> vertices() const {
        std::vector<sketchup::vec3> result;
        for (const SUPoint3D& p : all_of(SUMeshHelperGetNumVertices, SUMeshHelperGetVertices, ref))
            result.push_back({p.x, p.y, p.z});
        return result;
    }
    std::vector<sketchup::vec3> normals() const {
        std::vector<sketchup::vec3> result;
        for (const SUVector3D& n : all_of(SUMeshHelperGetNumVertices, SUMeshHelperGetNormals, ref))
            result.push_back({n.x, n.y, n.z});
        return result;
    }
    std::vector<sketchup::vec3> coordinates(SUResult (*get)(SUMeshHelperRef, size_t, SUPoint3D*, size_t*)) const {
        std::vector<sketchup::vec3> result;
        for (const SUPoint3D& p : all_of(SUMeshHelperGetNumVertices, get, ref))
            result.push_back({p.x, p.y, p.z});
        return result;
    }
    std::vector<size_t> indices() const {
        size_t count = 0;
        SUMeshHelperGetNumTriangles(ref, &count);
        std::vector<size_t> result(3 * count);
        SUMeshHelperGetVertexIndices(ref, result.size(), result.data(), &count);
        EXPECT_EQ(count, result.size());
        return result;
    }
    SUMeshHelperRef ref = SU_INVALID;
};

// The record of an object of an outside library.

#include "tests/tessaline/reader_fixture.h"

namespace {

class RpcObjects : public reader_test {
protected:
    // The record of the model's one instance under that placement.
    std::string record(const transform16& transform) {
        open();
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        rpc_description rpc;
        rpc.name = "Sedan";
        rpc.type_id = "AV-17";
        reader.write_rpc(all_handles(SUEntitiesGetNumInstances, SUEntitiesGetInstances, entities).front(), rpc,
                         transform);
        return stream_text();
    }

    sketchup::entity_place car = builder.root().instance(builder.component("car"));
};

TEST_F(RpcObjects, it_stands_with_its_place_axes_and_scales) {
    // Turned by 90 degrees, scaled 2, 3 and 4, at (10, 20, 30).
    const transform16 turned = {0, 2, 0, 0, -3, 0, 0, 0, 0, 0, 4, 0, 10, 20, 30, 1};
    EXPECT_EQ(record(turned),
              lines({"RPCP;(10,20,30)", "RPCX;(0,1,0)", "RPCY;(-1,0,0)", "RPCZ;(0,0,1)", "RPSX;2.000000",
                     "RPSY;3.000000", "RPSZ;4.000000", "RPCL;Layer0", "RPCN;AV-17", "#"}));
}

TEST_F(RpcObjects, an_axis_without_length_has_no_direction) {
    transform16 flat = identity16;
    flat[10] = 0;
    EXPECT_EQ(record(flat), lines({"RPCP;(0,0,0)", "RPCX;(1,0,0)", "RPCY;(0,1,0)", "RPCZ;(0,0,0)", "RPSX;1.000000",
                                   "RPSY;1.000000", "RPSZ;0.000000", "RPCL;Layer0", "RPCN;AV-17", "#"}));
}

TEST_F(RpcObjects, coordinates_are_cut_to_zero_in_inches_and_scales_are_not) {
    transform16 small = identity16;
    small[0] = 9e-8;
    small[12] = 9e-8;
    small[13] = -1e-7;
    const std::string text = record(small);
    EXPECT_NE(text.find("RPCP;(0,-1e-07,0)\r\nRPCX;(1,0,0)\r\n"), std::string::npos);
    EXPECT_NE(text.find("RPSX;0.000000\r\n"), std::string::npos); // six decimals of 9e-8
}

TEST_F(RpcObjects, an_instance_on_Layer0_names_the_layer_that_it_inherits) {
    builder.layer("Cars");
    set_layer(*current_oparms, "Cars");
    EXPECT_NE(record(identity16).find("RPCL;Cars\r\n"), std::string::npos);
}

TEST_F(RpcObjects, an_instance_on_a_layer_names_it) {
    builder.element(car).layer = builder.layer("Street");
    EXPECT_NE(record(identity16).find("RPCL;Street\r\n"), std::string::npos);
}

} // namespace

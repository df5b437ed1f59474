#pragma once

// What the setting "ivl_edge_lines" may say about the edges that are shown as lines. Any other number means all.
enum edge_choice {
    no_edges = 0,
    all_edges = 1,
    stand_alone_edges = 2, // those that bound no face
    painted_edges = 3,     // those with a material of their own
};

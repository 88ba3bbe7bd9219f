// The boundary representation classes as their accessors give their parameters, for the
// corpus test. List indices are given as the file numbers them, from 1.
#include "entities/entityFamily.h"
#include "entities/solids/igs186.h"
#include "entities/solids/igs502.h"
#include "entities/solids/igs504.h"
#include "entities/solids/igs508.h"

using namespace igs_family_test;

namespace {

template <class Record> void oriented(Record const& r, Values& v) {
  v << r.target() << r.orientation();
}

CorpusRows const solids = {
    row<igs502>([](igs502 const& e, Values& v) {
      v << e.num_vertices();
      for (int i = 0; i < e.num_vertices(); ++i) v << e.vertex(i);
    }),
    row<igs504>([](igs504 const& e, Values& v) {
      v << e.num_edges();
      for (int i = 0; i < e.num_edges(); ++i) {
        igsEdge const& edge = e.edge(i);
        v << edge.curve() << edge.first_vertex_list() << igs_index_to_file(edge.first_offset())
          << edge.second_vertex_list() << igs_index_to_file(edge.second_offset());
      }
    }),
    row<igs508>([](igs508 const& e, Values& v) {
      v << e.num_oriented_edges();
      for (int i = 0; i < e.num_oriented_edges(); ++i) {
        igsOrientedEdge const& o = e.oriented_edge(i);
        v << o.edge_type() << o.list() << igs_index_to_file(o.list_index()) << o.orientation()
          << o.num_half_edges();
        for (int j = 0; j < o.num_half_edges(); ++j)
          v << o.half_edge(j).isoparametric() << o.half_edge(j).curve();
      }
    }),
    row<igs510>([](igs510 const& e, Values& v) {
      v << e.basis_surface() << e.num_loops() << e.outer_loop();
      for (int i = 0; i < e.num_loops(); ++i) v << e.loop(i);
    }),
    row<igs514>([](igs514 const& e, Values& v) {
      v << e.num_faces();
      for (int i = 0; i < e.num_faces(); ++i) oriented(e.face(i), v);
    }),
    row<igs186>([](igs186 const& e, Values& v) {
      oriented(e.outer_shell(), v);
      v << e.num_void_shells();
      for (int i = 0; i < e.num_void_shells(); ++i) oriented(e.void_shell(i), v);
    }),
};

} // namespace

// Runs the repairs of a file's error log. The sections come in a fixed order, and the object
// errors in an order that puts the repairs of each entity after those of the entities it
// depends on, because a parent's repair decides by looking at how its children fared.
#pragma once

#include "errors/igsErrorLog.h"
#include "support/coNames.h"

// Walks the problem graph and counts the nodes that it has entered and not yet left: the
// length of the path from the root it started at, the root counting 1.
class igsTraveller {
 public:
  void enters() { ++m_depth; }
  void exits() { --m_depth; }
  int distance_travelled() const { return m_depth; }

 private:
  int m_depth = 0;
};

// One entity of the problem graph: the entities whose repairs must come first, and the length
// of the longest path that leads to it from a root (an entity that nothing depends on).
class igsFixNode {
 public:
  // The repairs of this node wait for those of the child. Duplicates are kept; a null child is
  // ignored.
  void depends_on(igsFixNode* child);
  // Marks the node as depended on: it is no root.
  void used() { m_used = 1; }
  int is_used() const { return m_used; }
  int distance() const { return m_distance; }
  int num_children() const { return m_children.size(); }
  // Takes the traveller down from this node. A node stores the distance travelled when that is
  // longer than what it holds and then passes the traveller on to its children; a node reached
  // by a path no longer than before is not walked again. A node on the path being walked stops
  // the traveller, so a cycle is cut where it closes. The walk keeps its own stack, so a long
  // chain of dependencies does not deepen the call stack.
  void accept_traveller(igsTraveller& traveller);

 private:
  int m_used = 0;
  igsFixNodePtrcoDynArr m_children;
  int m_distance = 0;
  int m_on_path = 0;
};

// Repairs every active error of a log by calling its `fix`: 1 moves the error to the fixed
// errors of the log, 0 leaves it active. Made for one run: the tables are filled by `fix` and
// stay as the run left them.
class igsFixer {
 public:
  igsFixer();
  igsFixer(igsFixer const&) = delete;
  igsFixer& operator=(igsFixer const&) = delete;
  virtual ~igsFixer() = default;

  // Repairs the structure, object, Global, Start and Terminate errors, in that order. With
  // `go_on` 0, a repair that fails ends the walk of its section (in the object section, the
  // walk of that entity's errors); otherwise the walk goes on. The log's file must be current.
  void fix(igsErrorLog& log, int go_on);

  // The node of the entity with that DE number after a run, or null when the graph has none.
  igsFixNode const* find_node(int de_number) const;
  int num_nodes() const { return m_nodes.size(); }

 protected:
  // Makes a node for the entity of each object error and for the entity whose repairs must
  // come before it (its `obj`), links the two, and lists each error under its own entity in
  // log order.
  void build_dependencies(igsErrorLog const& log);
  // Gives each node the length of the longest path from a root to it. Nodes on a cycle that no
  // root reaches keep the distance 0.
  void schedule_dependencies();

  void fix_file_errors(igsErrorLog& log, int go_on);
  // The deepest nodes first, down to distance 1; errors of nodes at distance 0 are not run.
  void fix_object_errors(igsErrorLog& log, int go_on);
  void fix_global_errors(igsErrorLog& log, int go_on);
  void fix_start_errors(igsErrorLog& log, int go_on);
  void fix_terminate_errors(igsErrorLog& log, int go_on);

 private:
  // The node of the DE number with its error list, both made when absent; null if that fails.
  igsFixNode* node(int de_number);
  // Repairs the errors of one section log in log order.
  static void fix_section(igsErrorLog& log, igsLogID section, int go_on);
  // Runs one repair and marks the error as fixed when it succeeds; returns the repair's result.
  static int run(igsErrorLog& log, igsError* error);

  intigsFixNodecoTablePrgcoPrgcoTable m_nodes;
  intigsErrorcoDynArrcoTablePrgcoPrgcoTable m_errors;
};

#include "errors/igsFixer.h"

#include <new>

void igsFixNode::depends_on(igsFixNode* child) {
  if (child) m_children.append(child);
}

void igsFixNode::accept_traveller(igsTraveller& traveller) {
  // One frame per node on the path: the node and the next of its children to pass the
  // traveller to. A node that the traveller reaches by no longer path than before gets a frame
  // with no children left, so it is only entered and left.
  struct Frame {
    igsFixNode* node;
    int next_child;
  };
  coDynArr<Frame> path;
  auto enter = [&](igsFixNode* node) {
    if (node->m_on_path) return; // a cycle closes here
    traveller.enters();
    int longer = traveller.distance_travelled() > node->m_distance;
    if (!path.append(Frame{node, longer ? 0 : node->m_children.size()})) {
      traveller.exits();
      return;
    }
    node->m_on_path = 1;
    if (longer) node->m_distance = traveller.distance_travelled();
  };

  enter(this);
  while (!path.empty()) {
    Frame& top = path.last();
    igsFixNodePtrcoDynArr const& children = top.node->m_children;
    if (top.next_child < children.size()) {
      igsFixNode* child = children[top.next_child++];
      enter(child); // may move the frames: `top` is not used after this
    } else {
      top.node->m_on_path = 0;
      traveller.exits();
      path.remove_last();
    }
  }
}

igsFixer::igsFixer() : m_nodes(4, 50), m_errors(4, 50) {}

void igsFixer::fix(igsErrorLog& log, int go_on) {
  fix_file_errors(log, go_on);
  fix_object_errors(log, go_on);
  fix_global_errors(log, go_on);
  fix_start_errors(log, go_on);
  fix_terminate_errors(log, go_on);
}

igsFixNode const* igsFixer::find_node(int de_number) const {
  coPrg<igsFixNode> const* found = m_nodes.read(de_number);
  return found ? found->get() : nullptr;
}

igsFixNode* igsFixer::node(int de_number) {
  if (coPrg<igsFixNode>* found = m_nodes.read(de_number)) return found->get();
  coPrg<igsFixNode> made(new (std::nothrow) igsFixNode);
  coPrg<igsErrorcoDynArr> errors(new (std::nothrow) igsErrorcoDynArr);
  if (!made || !errors) return nullptr;
  igsFixNode* result = made.get();
  m_nodes[de_number] = std::move(made);
  m_errors[de_number] = std::move(errors);
  return result;
}

void igsFixer::build_dependencies(igsErrorLog const& log) {
  // A fixer run twice starts from an empty graph: the errors listed by the last run may be
  // gone from the log since.
  m_nodes.clear();
  m_errors.clear();
  for (igsSimpleSectionLogIT it(&log.get_section_log(igsObjectLog)); ++it;) {
    igsError* error = it();
    if (!error->typeof(igsObjectError::id)) continue;
    auto* object_error = static_cast<igsObjectError*>(error);
    int key = object_error->key();
    // The entity whose repairs must come first; 0 when a named child has gone, and then the
    // node of DE number 0, which has no errors, stands in for it.
    int obj = object_error->obj();
    igsFixNode* parent = node(key);
    igsFixNode* child = node(obj);
    if (!parent || !child) continue; // out of memory: the error stays active
    if (key != obj) {
      parent->depends_on(child);
      child->used();
    }
    m_errors[key]->append(error);
  }
}

void igsFixer::schedule_dependencies() {
  igsTraveller traveller;
  for (auto& [de_number, node] : m_nodes)
    if (!node->is_used()) node->accept_traveller(traveller);
}

int igsFixer::run(igsErrorLog& log, igsError* error) {
  int fixed = error->fix();
  if (fixed) log.mark_as_fixed(error);
  return fixed;
}

void igsFixer::fix_section(igsErrorLog& log, igsLogID section, int go_on) {
  for (igsSimpleSectionLogIT it(&log.get_section_log(section)); ++it;)
    if (!run(log, it()) && !go_on) return;
}

void igsFixer::fix_file_errors(igsErrorLog& log, int go_on) {
  fix_section(log, igsStructureLog, go_on);
}

void igsFixer::fix_global_errors(igsErrorLog& log, int go_on) {
  fix_section(log, igsGlobalLog, go_on);
}

void igsFixer::fix_start_errors(igsErrorLog& log, int go_on) {
  fix_section(log, igsStartLog, go_on);
}

void igsFixer::fix_terminate_errors(igsErrorLog& log, int go_on) {
  fix_section(log, igsTerminateLog, go_on);
}

void igsFixer::fix_object_errors(igsErrorLog& log, int go_on) {
  build_dependencies(log);
  schedule_dependencies();
  int deepest = 0;
  for (auto const& [de_number, node] : m_nodes)
    if (node->distance() > deepest) deepest = node->distance();
  // No sorting: each distance walks the whole table, deepest first.
  for (int distance = deepest; distance >= 1; --distance)
    for (auto const& [de_number, node] : m_nodes) {
      if (node->distance() != distance) continue;
      for (igsError* error : *m_errors[de_number])
        if (!run(log, error) && !go_on) break;
    }
}

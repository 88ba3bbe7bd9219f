// The flattening of compounds for a host: solids into faces, nested groups into one level,
// and the count of curves on surfaces.
#include "entities/solids/igs186.h"
#include "entities/solids/igs510.h"
#include "entities/solids/igs514.h"
#include "entities/structure/igs308.h"
#include "entities/structure/igs408.h"
#include "entities/structure/igsCompound.h"
#include "entities/structure/igsGroup.h"
#include "entities/surfaces/igs142.h"

#include <algorithm>
#include <unordered_set>

namespace {

// The compounds on the path from the top down to the one being walked; none is there twice.
using Path = std::unordered_set<igsObject const*>;

int on_path(Path const& path, igsObject const* entity) {
  return path.count(entity) != 0;
}

} // namespace

void igsCompound::set_entities(igsObjectPtrcoDynArr const& members) {
  set_number_of_entities(members.size());
  for (int i = 0; i < members.size(); ++i) set_entity(i, members[i]);
}

void igsCompound::add_514_faces(igsObjectPtr const& shell, igsObjectPtrcoDynArr& list, int solid) {
  if (!shell || !shell->typeof(igs514::type())) return;
  igs514 const& faces = static_cast<igs514 const&>(*shell);
  for (int i = 0; i < faces.num_faces(); ++i) {
    igsOrientedFace const& oriented = faces.face(i);
    igsObjectPtr const& face = oriented.face();
    if (!face) continue;
    list.append(face);
    if (!face->typeof(igs510::type())) continue;
    igs510& sided = static_cast<igs510&>(*face);
    sided.set_orientation(oriented.orientation());
    sided.set_solid_id(solid);
  }
}

void igsCompound::explode_solids() {
  auto solid = [](igsObjectPtr const& m) {
    return m && (m->isa(igs186::type()) || m->isa(igs514::type()));
  };
  if (std::none_of(m_entities.members().begin(), m_entities.members().end(), solid)) return;
  igsObjectPtrcoDynArr members;
  for (igsObjectPtr const& member : m_entities.members()) {
    if (!solid(member)) {
      members.append(member);
    } else if (member->isa(igs514::type())) {
      add_514_faces(member, members, member->de_number());
    } else {
      igs186 const& body = static_cast<igs186 const&>(*member);
      add_514_faces(body.outer_shell().shell(), members, member->de_number());
      for (int i = 0; i < body.num_void_shells(); ++i)
        add_514_faces(body.void_shell(i).shell(), members, member->de_number());
    }
  }
  set_entities(members);
}

// Both walks keep their own stack, so that groups nested however deep cannot exhaust the
// call stack; a group that is already on the path stands as a plain member there.

void igsCompound::flatten_groups() {
  // A group being flattened: the members gathered so far and the position of the next one.
  struct Frame {
    igsCompound* group;
    int next = 0;
    int nested = 0; // whether a group was met among the members
    igsObjectPtrcoDynArr members = {};
  };
  std::vector<Frame> stack{{this}};
  Path path{this};
  igsCompound const* done = nullptr; // the group whose flattening has just ended
  while (!stack.empty()) {
    Frame& top = stack.back();
    auto const& members = top.group->m_entities.members();
    if (top.next == members.size()) {
      if (top.nested) top.group->set_entities(top.members);
      done = top.group;
      path.erase(top.group);
      stack.pop_back();
      continue;
    }
    igsObjectPtr const& member = members[top.next];
    if (!member || !member->typeof(igsGroup::type()) || on_path(path, member.operator->())) {
      top.members.append(member);
      ++top.next;
    } else if (done == member.operator->()) {
      for (igsObjectPtr const& inner : static_cast<igsCompound&>(*member).m_entities.members())
        top.members.append(inner);
      top.nested = 1;
      done = nullptr;
      ++top.next;
    } else {
      auto* group = static_cast<igsCompound*>(member.operator->());
      path.insert(group);
      stack.push_back({group});
    }
  }
}

int igsCompound::count_142() const {
  struct Frame {
    igsCompound const* compound;
    int next = 0;
  };
  std::vector<Frame> stack{{this}};
  Path path{this};
  int count = 0;
  while (!stack.empty()) {
    Frame& top = stack.back();
    auto const& members = top.compound->m_entities.members();
    if (top.next == members.size()) {
      path.erase(top.compound);
      stack.pop_back();
      continue;
    }
    igsObjectPtr const& member = members[top.next++];
    if (!member) continue;
    igsObject const* inner = member.operator->();
    if (member->typeof(igs142::type())) {
      ++count;
      continue;
    }
    if (member->typeof(igs408::type()))
      inner = static_cast<igs408 const&>(*member).get_subfigure().operator->();
    if (!inner || on_path(path, inner)) continue;
    if (inner->typeof(igsGroup::type()) ||
        (inner != member.operator->() && inner->typeof(igs308::type()))) {
      auto const* compound = static_cast<igsCompound const*>(inner);
      path.insert(compound);
      stack.push_back({compound});
    }
  }
  return count;
}

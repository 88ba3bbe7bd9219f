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

namespace {

int on_path(std::vector<igsCompound const*> const& path, igsObject const* entity) {
  return std::find(path.begin(), path.end(), entity) != path.end();
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

void igsCompound::flatten_groups() {
  std::vector<igsCompound const*> path;
  flatten_groups(path);
}

void igsCompound::flatten_groups(std::vector<igsCompound const*>& path) {
  auto nested = [&path](igsObjectPtr const& m) {
    return m && m->typeof(igsGroup::type())&& !on_path(path, m.operator->());
  };
  path.push_back(this);
  if (std::any_of(m_entities.members().begin(), m_entities.members().end(), nested)) {
    igsObjectPtrcoDynArr members;
    for (igsObjectPtr const& member : m_entities.members()) {
      if (!nested(member)) {
        members.append(member);
        continue;
      }
      auto& group = static_cast<igsCompound&>(*member);
      group.flatten_groups(path);
      for (igsObjectPtr const& inner : group.m_entities.members()) members.append(inner);
    }
    set_entities(members);
  }
  path.pop_back();
}

int igsCompound::count_142() const {
  std::vector<igsCompound const*> path;
  return count_142(path);
}

int igsCompound::count_142(std::vector<igsCompound const*>& path) const {
  path.push_back(this);
  int count = 0;
  for (igsObjectPtr const& member : m_entities.members()) {
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
        (inner != member.operator->() && inner->typeof(igs308::type())))
      count += static_cast<igsCompound const*>(inner)->count_142(path);
  }
  path.pop_back();
  return count;
}

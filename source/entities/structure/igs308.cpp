#include "entities/structure/igs308.h"

#include "core/igsObjectSystem.h"
#include "entities/structure/igs408.h"
#include "entities/structure/igsStructureErrors.h"
#include "errors/igsErrorLog.h"

#include <algorithm>
#include <climits>

IGS_ENTITY_DEFINE(igs308, igsCompound, 308, 0, IGS_DE_ALL)

int igs308::read_pd_data(igsInStream& in) {
  int depth = 0, count = 0;
  utString name;
  in.read_integer(depth);
  in.read_holerith(name);
  in.read_integer(count);
  m_depth = depth;
  m_name = name;
  return read_entities(in, count);
}

void igs308::write_pd_data(igsOutStream& out) {
  out.write_integer(m_depth);
  out.write_holerith(m_name);
  out.write_integer(m_entities.written_count());
  write_entities(out);
}

void igs308::print_pd_data(utOstream&) const {}

igs308* igs308::placed_definition(int position) const {
  igsObjectPtr const& entity = get_entity(position);
  if (!entity || !entity->typeof(igs408::type())) return nullptr;
  return static_cast<igs408 const&>(*entity).placed_definition();
}

int igs308::closes_loop(igs308 const& placed) const {
  return &placed == this || m_reference_set.member(placed.de_number());
}

template <class Numbers> intcoDynArr igs308::absorb(Numbers const& numbers) const {
  intcoDynArr news;
  for (int number : numbers)
    if (!m_reference_set.member(number)) {
      m_reference_set.add(number);
      news.append(number);
    }
  return news;
}

void igs308::pass_on(igs308 const& grown, intcoDynArr news) {
  struct Step {
    igs308 const* definition;
    intcoDynArr news;
  };
  coDynArr<Step> pending;
  pending.append({&grown, std::move(news)});
  while (!pending.empty()) {
    Step step = std::move(pending.last());
    pending.remove_last();
    igs308 const& definition = *step.definition;
    for (int i = 0; i < definition.m_entities.size(); ++i) {
      igs308* placed = definition.placed_definition(i);
      if (!placed || definition.closes_loop(*placed)) continue;
      intcoDynArr learnt = placed->absorb(step.news);
      if (!learnt.empty() && placed->m_checked) pending.append({placed, std::move(learnt)});
    }
  }
}

void igs308::copy_set(intcoSet& source) {
  intcoDynArr news = absorb(source);
  if (!news.empty() && m_checked) pass_on(*this, std::move(news));
}

int igs308::self_referencing() {
  m_reference_set.add(de_number());
  for (int i = 0; i < m_entities.size(); ++i)
    if (igs308* placed = placed_definition(i)) {
      if (closes_loop(*placed)) return 1;
      placed->copy_set(m_reference_set);
    }
  return 0;
}

// Every placement hands this definition's set down, or closes a loop; the loop is reported at
// the instance that closes it, if that instance passed its own check (one that did not is
// reported as a bad member). A definition that places another must be deeper than it.
void igs308::check_pd() const {
  if (m_name.is_null()) raise_error<igs308InvalidString>();
  if (number_of_entities() < 0) raise_error<igs308InvalidSize>();
  m_checked = 1;
  m_reference_set.add(de_number());
  int depth_fault = 0;
  for (int i = 0; i < m_entities.size(); ++i) {
    igsObjectPtr const& entity = get_entity(i);
    int original = get_original_index(i);
    int sound = 1;
    if (!entity) {
      raise_error<igs308NullGeometryPointer>(original);
      continue;
    }
    if (!entity->check()) {
      raise_error<igs308BadSubEntity>(original);
      sound = 0;
    }
    igs308* placed = placed_definition(i);
    if (!placed) continue;
    if (!closes_loop(*placed))
      placed->copy_set(m_reference_set);
    else if (sound)
      raise_error<igs308SelfReferencingSubfigure>(original);
    if (sound && (m_depth == 0 || placed->depth() >= m_depth)) depth_fault = 1;
  }
  if (depth_fault) raise_error<igs308InvalidDepth>();
}

// Depth first, without recursion, each definition's height found once: the longest chain
// below it, a placement that leads back onto the path (a loop) counting one level.
int igs308::placement_depth(intcoSet const& passed_over) const {
  struct Level {
    igs308 const* definition;
    int next; // the position of the next entity to look at
    int best; // the longest chain below it found so far
  };
  coDynArr<Level> path;
  intcoSet on_path;
  intintcoTable heights;
  if (!path.append({this, 0, 0})) return 0;
  on_path.add(de_number());
  for (;;) {
    Level& level = path.last();
    if (level.next >= level.definition->m_entities.size()) {
      int height = level.best;
      on_path.remove(level.definition->de_number());
      heights[level.definition->de_number()] = height;
      path.remove_last();
      if (path.empty()) return height;
      path.last().best = std::max(path.last().best, height + 1);
      continue;
    }
    igsObjectPtr const& entity = level.definition->get_entity(level.next++);
    if (!entity || !entity->typeof(igs408::type())) continue;
    if (path.size() == 1 && passed_over.member(entity->de_number())) continue;
    igsObjectPtr subfigure = static_cast<igs408 const&>(*entity).get_subfigure();
    if (!subfigure) continue;
    int de = subfigure->de_number();
    int height = 0;
    if (int const* known = heights.read(de))
      height = *known;
    else if (subfigure->typeof(igs308::type())&& !on_path.member(de) &&
             path.append({static_cast<igs308 const*>(subfigure.operator->()), 0, 0})) {
      on_path.add(de);
      continue;
    }
    level.best = std::max(level.best, height + 1);
  }
}

int igs308SelfReferencingSubfigure::obj() {
  if (!cached_obj()) set_cached_obj(igs_member_obj(key(), index(), &igsCompound::entity_de_number));
  return cached_obj();
}

// Drops every entry that is the instance named (all of them, also those that did not close
// the loop) and every null entry.
int igs308SelfReferencingSubfigure::fix() {
  igs308* definition = igs_error_entity<igs308>(key());
  if (!definition) return 0;
  int instance = obj();
  int dropped = definition->drop_entities(
      [instance](igsObjectPtr const& entity) { return entity && entity->de_number() != instance; });
  if (dropped)
    message("Warning : %d recursive subfigure references have been deleted from ig%d\n", dropped,
            key());
  return 1;
}

// The depth becomes the longest chain below the definition, and at least one more than the
// depth each definition it places declares, so that the definition passes its check whatever
// the others declare. The instances that the definition's own loop repairs are to drop do not
// count, whichever repair comes first.
int igs308InvalidDepth::fix() {
  igs308* definition = igs_error_entity<igs308>(key());
  if (!definition) return 0;
  intcoSet looping;
  igsIndexedSectionLog& log = *igsObjectSystem::log().get_indexed_log(igsObjectLog);
  for (igsSimpleSectionLogIT it(&log); ++it;)
    if (auto* error = static_cast<igsObjectError*>(it());
        error->key() == key() && error->isa(igs308SelfReferencingSubfigure::type()))
      looping.add(error->obj());
  int depth = definition->placement_depth(looping);
  for (int i = 0; i < definition->number_of_entities(); ++i) {
    igsObjectPtr const& entity = definition->get_entity(i);
    if (!entity || !entity->typeof(igs408::type()) || looping.member(entity->de_number())) continue;
    igs308 const* placed = static_cast<igs408 const&>(*entity).placed_definition();
    if (placed && placed->depth() < INT_MAX) depth = std::max(depth, placed->depth() + 1);
  }
  definition->set_depth(depth);
  return 1;
}

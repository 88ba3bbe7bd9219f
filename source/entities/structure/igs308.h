// The subfigure definition (type 308): a named list of entities with a declared nesting
// depth. Definitions hold instances (igs408) of other definitions, so they form a graph, in
// which a loop (a definition that places itself, directly or through others) is an error.
//
// The loop test needs no walk of the graph: each definition keeps the set of definitions
// known to lead to it (its own DE number included) and hands it down to the definitions it
// places when it is checked. A definition that places one of its own ancestors closes a loop.
// A definition checked earlier whose set grows hands the news on at once, without recursion,
// so that one check of a file finds every loop whatever the order of its definitions. The
// sets are never emptied.
#pragma once

#include "entities/structure/igsCompound.h"

class igs308 : public igsCompound {
  IGS_ENTITY_CLASS(igs308)

  // 0: no instance of another definition inside.
  int depth() const { return m_depth; }
  void set_depth(int depth) { m_depth = depth; }
  utString get_name() const { return m_name; }
  void set_name(utString const& name) { m_name = name; }

  // Adds the DE numbers of the source to the set of definitions known to lead to this one.
  void copy_set(intcoSet& source);
  // Adds this definition to its set and hands the set down to the definitions it places, up
  // to the first that closes a loop: 1 then, else 0.
  int self_referencing();

  // The longest chain of placements below this definition: 0 without instances, 1 with
  // instances of definitions without instances, and so on. A placement that leads back to a
  // definition of the chain (a loop) counts one level and ends there. The instances of this
  // definition whose DE numbers are `passed_over` do not count.
  int placement_depth(intcoSet const& passed_over = {}) const;

 private:
  // The definition that the entity at a position places, if it is an instance of one.
  igs308* placed_definition(int position) const;
  // Whether placing the definition closes a loop: it is this one or leads to this one.
  int closes_loop(igs308 const& placed) const;
  // Adds the DE numbers to the set and gives those that were new.
  template <class Numbers> intcoDynArr absorb(Numbers const& numbers) const;
  // Hands what the definition has just learnt (`news`) down to the definitions it places,
  // and what they learn of it to theirs, as far as it is news to them; a placement that
  // would close a loop passes nothing on. Only definitions already checked pass news on:
  // the others hand their whole set down when they are checked.
  static void pass_on(igs308 const& grown, intcoDynArr news);

  utString m_name;
  int m_depth = igs_unset_int;
  mutable intcoSet m_reference_set{4, 50};
  // Set once the definition has been checked: from then on growth of its set is passed on.
  mutable int m_checked = 0;
};

#include "core/objectTestSupport.h"

#include "errors/igsFixer.h"

#include <vector>

namespace {

// The tags of the errors whose fix ran, in the order of the calls.
std::vector<int>& fix_calls() {
  static std::vector<int> calls;
  return calls;
}

// A parent's error about its child at `index`, as a composite curve has about a sub-curve that
// failed its check: repairs of the child come first, and the parent's repair keeps the child
// if they cleared it, else drops the reference.
IGS_ERROR_DECLARE(fixerBadChildData, igsObjectError, FIX_OBJ, (int, index), (int, tag))
IGS_ERROR_DEFINE(fixerBadChildData, igsObjectError, FIX_OBJ)

igsObjectPtr* child_of(int parent_de, int index) {
  igsObjectPtr parent(parent_de);
  if (!parent || !parent->typeof(testNode::id)) return nullptr;
  auto& node = static_cast<testNode&>(*parent);
  return index < node.num_children() ? &node.child(index) : nullptr;
}

int fixerBadChildData::obj() {
  if (!cached_obj()) {
    igsObjectPtr* child = child_of(key(), index());
    if (!child || !*child) return 0; // the child has gone
    set_cached_obj((*child)->de_number());
  }
  return cached_obj();
}

int fixerBadChildData::fix() {
  fix_calls().push_back(tag());
  igsObjectPtr* child = child_of(key(), index());
  if (child && *child && (*child)->num_logged_errors() > 0) *child = igsObjectPtr();
  return 1;
}

// A node on which the tests raise errors directly.
class fixerNode : public testNode {
  KVU_DECLARE_TYPE()
 public:
  template <class E, class... A> void raise(A... arguments) const { raise_error<E>(arguments...); }
  // The error about child i, tagged with this node's DE number.
  void raise_bad_child(int i) const { raise<fixerBadChildData>(i, de_number()); }

 protected:
  igsObject* make_one() override { return new fixerNode; }
};
KVU_DEFINE_TYPE(fixerNode, testNode)

class FixerTest : public FileTest {
 protected:
  FixerTest() { fix_calls().clear(); }

  fixerNode* node() { return new fixerNode; }
  static int distance(igsFixer const& fixer, igsObject const* entity) {
    igsFixNode const* n = fixer.find_node(entity->de_number());
    return n ? n->distance() : -1;
  }
  igsFixer fixer;
};

TEST(FixNodeTest, ALongChainIsWalkedWithoutDeepeningTheCallStack) {
  constexpr int length = 200000;
  std::vector<igsFixNode> chain(length);
  for (int i = 0; i + 1 < length; ++i) {
    chain[i].depends_on(&chain[i + 1]);
    chain[i + 1].used();
  }
  EXPECT_FALSE(chain[0].is_used());
  EXPECT_TRUE(chain[1].is_used());
  igsTraveller traveller;
  chain[0].accept_traveller(traveller);
  EXPECT_EQ(chain[0].distance(), 1);
  EXPECT_EQ(chain[length / 2].distance(), length / 2 + 1);
  EXPECT_EQ(chain[length - 1].distance(), length);
}

TEST_F(FixerTest, ANodeOfDENumberZeroStandsInForAChildThatHasGone) {
  fixerNode* parent = node();
  parent->add_child(igsObjectPtr());
  parent->raise_bad_child(0);
  fixer.fix(log(), 1);
  igsFixNode const* stand_in = fixer.find_node(0);
  ASSERT_NE(stand_in, nullptr);
  EXPECT_TRUE(stand_in->is_used());
  EXPECT_EQ(stand_in->num_children(), 0);
  EXPECT_EQ(stand_in->distance(), 2);
  EXPECT_EQ(distance(fixer, parent), 1);
  EXPECT_EQ(fixer.find_node(parent->de_number())->num_children(), 1);
  EXPECT_EQ(fix_calls(), std::vector<int>{parent->de_number()});
  EXPECT_EQ(object_log().num_errors(), 0);
}

} // namespace

// Small entity and error classes for the tests of the object core and the logs. No real
// entity class is needed to exercise references, files and logs: a node holds references to
// other nodes and raises errors from its check.
#pragma once

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectPtr.h"
#include "core/igsObjectSystem.h"
#include "errors/igsErrorClass.h"
#include "errors/igsErrorLog.h"
#include "sections/igsDate.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsGlobalSection.h"
#include "sections/igsUnits.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

namespace {

IGS_ERROR_DECLARE(testNodeNegativeValue, igsObjectError, REPORT, (int, value))
IGS_ERROR_DECLARE(testNodeBadChild, igsObjectError, REPORT, (int, index))
IGS_ERROR_DECLARE(testNodeOddValue, igsStructureError, SETTLED, (int, de_number), (int, value))
IGS_ERROR_DEFINE(testNodeNegativeValue, igsObjectError, REPORT)
IGS_ERROR_DEFINE(testNodeBadChild, igsObjectError, REPORT)
IGS_ERROR_DEFINE(testNodeOddValue, igsStructureError, SETTLED)

// An entity with a value and references to children. Its check raises an object error for a
// negative value and one for each child that fails its own check; it counts its checks.
class testNode : public igsObject {
  KVU_DECLARE_TYPE()
 public:
  static constexpr int type_number = 9001;
  explicit testNode(int value = 0) : m_value(value) {
    set_directory_entry_type(static_cast<igsEntityType>(type_number), 0);
  }

  int value() const { return m_value; }
  int num_children() const { return m_children.size(); }
  igsObjectPtr& child(int i) { return m_children[i]; }
  void add_child(igsObjectPtr const& child) { m_children.append(child); }
  int checks() const { return m_checks; }
  // Raises a structure error under this entity's DE number, as the reader would.
  void raise_structure_error() const { raise_error<testNodeOddValue>(de_number(), m_value); }
  // Gives up a child as a parent's repair would.
  void drop_child(int i) { m_children[i].unreference(); }
  void drop_children() { unreference_children(); }

 protected:
  igsObject* make_one() override { return new testNode; }
  int read_pd_data(igsInStream&) override { return 0; }
  void write_pd_data(igsOutStream&) override {}
  void print_pd_data(utOstream& out) const override {
    out << "Value = " << m_value << "\n";
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (int i = 0; i < m_children.size(); ++i) {
      out << "Child(" << i << ")= {\n";
      if (igsObjectPtr const& c = m_children[i])
        c->print(nested);
      else
        nested << "(NullPointer)\n";
      out << "}\n";
    }
  }
  void check_pd() const override {
    ++m_checks;
    if (m_value < 0) raise_error<testNodeNegativeValue>(m_value);
    for (int i = 0; i < m_children.size(); ++i)
      if (igsObjectPtr const& c = m_children[i]; c && !c->check()) raise_error<testNodeBadChild>(i);
  }
  void check_de() const override {}
  void unreference_children() override {
    igsObject::unreference_children();
    for (igsObjectPtr& c : m_children) c.unreference();
  }

 private:
  int m_value;
  igsObjectPtrcoDynArr m_children;
  mutable int m_checks = 0;
};
KVU_DEFINE_TYPE(testNode, igsObject)

// A kind of node, to tell the kind-of test from the exact one.
class testSpecialNode : public testNode {
  KVU_DECLARE_TYPE()
 protected:
  igsObject* make_one() override { return new testSpecialNode; }
};
KVU_DEFINE_TYPE(testSpecialNode, testNode)

// A host's file that exposes what the writer and the reader use.
class testFile : public igsFile {
 public:
  using igsFile::compress;
  using igsFile::remove_forward_references;
  using igsFile::set_pathname;
};

// A Global section with fixed dates, so that a written file does not depend on today.
inline void set_fixed_global_section(igsFile& file) {
  igsGlobalSection global;
  global.set_product_id_from_sending_system("igs test");
  global.set_file_name("small.igs");
  global.set_binary_bits_for_int(32);
  global.set_sp_max_pow10(38);
  global.set_sp_sig_digs(6);
  global.set_dp_max_pow10(308);
  global.set_dp_sig_digs(15);
  global.set_units(igsUnits(utString("MM"), igsUnitMillimeter));
  global.set_file_creation_date(igsDate(utString("20240102.030405")));
  global.set_file_modification_date(igsDate(utString("20240102.030405")));
  global.set_minimum_resolution(0.001);
  global.set_max_coord_value(100.0);
  global.set_iges_version(11);
  file.set_global_section(global);
}

// Each test works on a file of its own, current while the test runs.
class FileTest : public ::testing::Test {
 protected:
  std::unique_ptr<testFile> file = std::make_unique<testFile>();

  igsErrorLog& log() { return igsObjectSystem::log(); }
  igsIndexedSectionLog& object_log() { return *log().get_indexed_log(igsObjectLog); }
  igsIndexedSectionLog& structure_log() { return *log().get_indexed_log(igsStructureLog); }
};

} // namespace

#include "support/coResource.h"

coResourceTable* kvn_resource_table_inquire() {
  static coResourceTable table;
  return &table;
}

constinit intcoResourceKey const kvnOptDoubleFieldWidth(0, "kvnOptDoubleFieldWidth", 20);
constinit intcoResourceKey const kvnOptDoubleGeometricPrecision(1, "kvnOptDoubleGeometricPrecision",
                                                                15);
constinit intcoResourceKey const
    kvnOptDoubleParametricPrecision(2, "kvnOptDoubleParametricPrecision", 15);
constinit utBoolcoResourceKey const kvnOptRigidTransforms(3, "kvnOptRigidTransforms", 0);
constinit doublecoResourceKey const
    kvnTolRigidTransformDeterminant(4, "kvnTolRigidTransformDeterminant", 1e-6);
constinit doublecoResourceKey const kvnTolMinValue(5, "kvnTolMinValue", 1e-15);
constinit doublecoResourceKey const kvnTolCoincWeights(6, "kvnTolCoincWeights", 1e-9);
constinit doublecoResourceKey const kvnTolCoincBreakPoints(7, "kvnTolCoincBreakPoints", 1e-9);
constinit doublecoResourceKey const kvnTolCoincAngles(8, "kvnTolCoincAngles", 1e-9);
constinit doublecoResourceKey const kvnTolZeroLength(9, "kvnTolZeroLength", 1e-9);
constinit doublecoResourceKey const kvnTolRadiusDiff(10, "kvnTolRadiusDiff", 1e-6);
constinit doublecoResourceKey const kvnTolConicIsParabola(11, "kvnTolConicIsParabola", 1e-9);
constinit doublecoResourceKey const kvnTolClosureCurve3d(12, "kvnTolClosureCurve3d", 1e-6);
constinit doublecoResourceKey const kvnTolCoincPoint2d(13, "kvnTolCoincPoint2d", 1e-9);

// The flat names of the container instantiations that the library uses: element type, then
// family. Each is a one-line alias of a container template.
#pragma once

#include "support/coCollections.h"
#include "support/coDynArr.h"
#include "support/giGeometry.h"
#include "support/utString.h"

class igsIOError;
class igsError;
class igsErrorLog;
class igsFile;
class igsFixNode;
class igsObject;
class igsObjectManager;
class igsObjectPtr;
class igsSimpleSectionLog;

using charcoDynArr = coDynArr<char>;
using intcoDynArr = coDynArr<int>;
using doublecoDynArr = coDynArr<double>;
using utBoolcoDynArr = coDynArr<utBool>;
using utStringcoDynArr = coDynArr<utString>;
using utStringcoStack = coStack<utString>;
using intcoStack = coStack<int>;
using intcoSet = coSet<int>;
using intintcoTable = coTable<int, int>;
using intutStringcoTable = coTable<int, utString>;

using giPoint2coDynArr = coDynArr<giPoint2>;
using giPoint2coFixedArr = coFixedArr<giPoint2>;
using giPoint3coDynArr = coDynArr<giPoint3>;
using giPoint3coFixedArr = coFixedArr<giPoint3>;
using giPoint3coFixedArr2D = coFixedArr2D<giPoint3>;
using giVector3coDynArr = coDynArr<giVector3>;
using doublecoFixedArr = coFixedArr<double>;
using utBoolcoFixedArr = coFixedArr<utBool>;

using igsIOErrorcoDynArr = coDynArr<igsIOError>;
using igsErrorPtrcoDynArr = coDynArr<igsError*>;
using igsErrorcoDynArr = coDynArr<igsError*>;
using igsErrorPtrcoSet = coSet<igsError*>;
using igsObjectPtrcoDynArr = coDynArr<igsObjectPtr>;
using igsObjectPtrPtrcoDynArr = coDynArr<igsObjectPtr*>;
using igsObjectManagerPtrcoPageArr = coPageArr<igsObjectManager*>;
using intigsObjectManagerPtrcoTable = coTable<int, igsObjectManager*>;
using igsErrorLogPtrcoDynArr = coDynArr<igsErrorLog*>;
using igsFilecoDynArrPtrcoPtrcoDynArr = coDynArr<igsFile*>;
using igsSimpleSectionLogcoDynArrPrgcoPrgcoDynArr = coDynArr<coPrg<igsSimpleSectionLog>>;
using igsFixNodePtrcoDynArr = coDynArr<igsFixNode*>;
using intigsFixNodecoTablePrgcoPrgcoTable = coTable<int, coPrg<igsFixNode>>;
using intigsErrorcoDynArrcoTablePrgcoPrgcoTable = coTable<int, coPrg<igsErrorcoDynArr>>;

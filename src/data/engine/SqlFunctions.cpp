#include "data/engine/SqlFunctions.h"

#include <sqlcipher/sqlite3.h>

#include <exception>
#include <limits>
#include <span>
#include <string>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "data/engine/Collation.h"
#include "data/engine/Conversion.h"
#include "data/engine/Database.h"
#include "data/engine/Like.h"
#include "data/engine/SqlNames.h"

namespace lorvane::sql {
namespace {

constexpr std::int32_t kDivisionByZero = 11;

using Arguments = std::span<sqlite3_value*>;

std::string_view TextIn(sqlite3_value* value) {
  const void* text = sqlite3_value_text(value);
  return text == nullptr ? std::string_view()
                         : std::string_view(static_cast<const char*>(text),
                                            static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

Value ValueIn(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER: {
      const std::int64_t whole = sqlite3_value_int64(value);
      const bool fits = whole >= std::numeric_limits<std::int32_t>::min() &&
                        whole <= std::numeric_limits<std::int32_t>::max();
      return fits ? Value(static_cast<std::int32_t>(whole)) : Value(static_cast<double>(whole));
    }
    case SQLITE_FLOAT:
      return sqlite3_value_double(value);
    default:
      return std::string(TextIn(value));
  }
}

void SetResult(sqlite3_context* context, const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    sqlite3_result_text64(context, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  } else if (const auto* whole = std::get_if<std::int32_t>(&value)) {
    sqlite3_result_int(context, *whole);
  } else if (const auto* number = std::get_if<double>(&value)) {
    sqlite3_result_double(context, *number);
  } else {
    sqlite3_result_null(context);
  }
}

Value Store(Arguments arguments) {
  Column column;
  column.type = static_cast<ColumnType>(sqlite3_value_int(arguments[1]));
  column.size = sqlite3_value_int(arguments[2]);
  column.name = TextIn(arguments[3]);
  return ToStored(ValueIn(arguments[0]), column);
}

Value NumberOf(Arguments arguments) {
  return sqlite3_value_type(arguments[0]) == SQLITE_TEXT ? Value(NumberInText(TextIn(arguments[0])))
                                                         : ValueIn(arguments[0]);
}

Value Words(Arguments arguments) { return TextOf(ValueIn(arguments[0])); }

Value StoredDate(Arguments arguments) { return IsoDate(DateInText(TextIn(arguments[0]))); }

Value Serial(Arguments arguments) {
  return sqlite3_value_type(arguments[0]) == SQLITE_TEXT
             ? Value(SerialOf(DateInText(TextIn(arguments[0]))))
             : ValueIn(arguments[0]);
}

Value ShortForm(Arguments arguments) { return ShortDate(DateInText(TextIn(arguments[0]))); }

Value Divide(Arguments arguments) {
  const double divisor = sqlite3_value_double(arguments[1]);
  if (divisor == 0) {
    throw RuntimeError(kDivisionByZero, "The statement divides by zero.");
  }
  return CheckedDouble(sqlite3_value_double(arguments[0]) / divisor);
}

Value Like(Arguments arguments) {
  return FitsPattern(TextIn(arguments[0]), TextIn(arguments[1])) ? 1 : 0;
}

// Nothing may leave a callback of the C library but a result; what a null goes in gives null.
template <auto function, bool nullToo = false>
void Call(sqlite3_context* context, int count, sqlite3_value** values) {
  const Arguments arguments(values, static_cast<std::size_t>(count));
  try {
    for (sqlite3_value* argument : arguments) {
      if (!nullToo && sqlite3_value_type(argument) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
      }
    }
    SetResult(context, function(arguments));
  } catch (const RuntimeError& error) {
    static_cast<Database*>(sqlite3_user_data(context))->SetCause(error);
    sqlite3_result_error(context, error.what(), -1);
  } catch (const std::exception&) {
    sqlite3_result_error_nomem(context);
  }
}

int Collate(void* /*unused*/, int leftSize, const void* left, int rightSize, const void* right) {
  const auto textOf = [](const void* text, int size) {
    return std::string_view(static_cast<const char*>(text), static_cast<std::size_t>(size));
  };
  try {
    return CompareTexts(textOf(left, leftSize), textOf(right, rightSize));
  } catch (const std::exception&) {
    return textOf(left, leftSize).compare(textOf(right, rightSize));
  }
}

}  // namespace

void RegisterFunctions(Database& database) {
  const auto require = [&](int code) {
    if (code != SQLITE_OK) {
      database.Fail(code);
    }
  };
  const auto add = [&](const char* name, int arguments, auto* function) {
    require(sqlite3_create_function_v2(database.Handle(), name, arguments,
                                       SQLITE_UTF8 | SQLITE_DETERMINISTIC, &database, function,
                                       nullptr, nullptr, nullptr));
  };
  // The order of texts must be there before the first statement needs it.
  static_cast<void>(CompareTexts("a", "b"));
  require(sqlite3_create_collation_v2(database.Handle(), kTextCollation, SQLITE_UTF8, nullptr,
                                      Collate, nullptr));
  add(kStoreFunction, 4, Call<Store, true>);
  add(kNumberFunction, 1, Call<NumberOf>);
  add(kTextFunction, 1, Call<Words>);
  add(kDateFunction, 1, Call<StoredDate>);
  add(kSerialFunction, 1, Call<Serial>);
  add(kShortDateFunction, 1, Call<ShortForm>);
  add(kDivideFunction, 2, Call<Divide>);
  add(kLikeFunction, 2, Call<Like>);
}

}  // namespace lorvane::sql

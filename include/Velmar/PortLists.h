#pragma once

// Field rows of the per-port fields SP_TREE_PORT<n>, made by rule. Each list calls
// FIELD(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) once per port, in ascending order.

#define VELMAR_SP_TREE_PORT(FIELD, n) \
  FIELD(spTreePort##n, SpTreePort##n, SP_TREE_PORT##n, U8, "spanning-tree state of the port")

/// Ports 10t to 10t + 9; an empty `t` stands for the first ten.
#define VELMAR_SP_TREE_TEN(FIELD, t)                                            \
  VELMAR_SP_TREE_PORT(FIELD, t##0)                                              \
  VELMAR_SP_TREE_PORT(FIELD, t##1) VELMAR_SP_TREE_PORT(FIELD, t##2)             \
      VELMAR_SP_TREE_PORT(FIELD, t##3) VELMAR_SP_TREE_PORT(FIELD, t##4)         \
          VELMAR_SP_TREE_PORT(FIELD, t##5) VELMAR_SP_TREE_PORT(FIELD, t##6)     \
              VELMAR_SP_TREE_PORT(FIELD, t##7) VELMAR_SP_TREE_PORT(FIELD, t##8) \
                  VELMAR_SP_TREE_PORT(FIELD, t##9)

#define VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)                                                     \
  VELMAR_SP_TREE_TEN(FIELD, )                                                                    \
  VELMAR_SP_TREE_TEN(FIELD, 1) VELMAR_SP_TREE_TEN(FIELD, 2) VELMAR_SP_TREE_TEN(FIELD, 3)         \
      VELMAR_SP_TREE_TEN(FIELD, 4) VELMAR_SP_TREE_TEN(FIELD, 5) VELMAR_SP_TREE_TEN(FIELD, 6)     \
          VELMAR_SP_TREE_TEN(FIELD, 7) VELMAR_SP_TREE_TEN(FIELD, 8) VELMAR_SP_TREE_TEN(FIELD, 9) \
              VELMAR_SP_TREE_TEN(FIELD, 10) VELMAR_SP_TREE_TEN(FIELD, 11)                        \
                  VELMAR_SP_TREE_TEN(FIELD, 12) VELMAR_SP_TREE_TEN(FIELD, 13)                    \
                      VELMAR_SP_TREE_TEN(FIELD, 14) VELMAR_SP_TREE_TEN(FIELD, 15)

#define VELMAR_SP_TREE_PORTS_160_TO_271(FIELD)                                                  \
  VELMAR_SP_TREE_TEN(FIELD, 16)                                                                 \
  VELMAR_SP_TREE_TEN(FIELD, 17) VELMAR_SP_TREE_TEN(FIELD, 18) VELMAR_SP_TREE_TEN(FIELD, 19)     \
      VELMAR_SP_TREE_TEN(FIELD, 20) VELMAR_SP_TREE_TEN(FIELD, 21) VELMAR_SP_TREE_TEN(FIELD, 22) \
          VELMAR_SP_TREE_TEN(FIELD, 23) VELMAR_SP_TREE_TEN(FIELD, 24)                           \
              VELMAR_SP_TREE_TEN(FIELD, 25) VELMAR_SP_TREE_TEN(FIELD, 26)                       \
                  VELMAR_SP_TREE_PORT(FIELD, 270) VELMAR_SP_TREE_PORT(FIELD, 271)

#define VELMAR_SP_TREE_PORTS_136_TO_271(FIELD)                                                    \
  VELMAR_SP_TREE_PORT(FIELD, 136)                                                                 \
  VELMAR_SP_TREE_PORT(FIELD, 137) VELMAR_SP_TREE_PORT(FIELD, 138) VELMAR_SP_TREE_PORT(FIELD, 139) \
      VELMAR_SP_TREE_TEN(FIELD, 14) VELMAR_SP_TREE_TEN(FIELD, 15)                                 \
          VELMAR_SP_TREE_PORTS_160_TO_271(FIELD)

#ifndef VELMAR_TESTS_PTHREAD_H
#define VELMAR_TESTS_PTHREAD_H

// Threads for a machine that has none: each runs to its end when it is made.

#define _PTHREAD_H

typedef int pthread_t;

static inline int pthread_create(pthread_t* thread, const void* attributes, void* (*run)(void*),
                                 void* argument) {
  (void)attributes;
  *thread = 0;
  run(argument);
  return 0;
}

static inline int pthread_join(pthread_t thread, void** result) {
  (void)thread;
  (void)result;
  return 0;
}

#endif

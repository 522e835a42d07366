// What a test is compiled with: some limits and counts hold without a sanitizer only.
#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define IS_ADDRESS_SANITIZED true
#endif
#if __has_feature(thread_sanitizer)
#define IS_THREAD_SANITIZED true
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define IS_ADDRESS_SANITIZED true
#endif
#if defined(__SANITIZE_THREAD__)
#define IS_THREAD_SANITIZED true
#endif
#ifndef IS_ADDRESS_SANITIZED
#define IS_ADDRESS_SANITIZED false
#endif
#ifndef IS_THREAD_SANITIZED
#define IS_THREAD_SANITIZED false
#endif

constexpr bool is_sanitized = IS_ADDRESS_SANITIZED || IS_THREAD_SANITIZED;

namespace vexa {}

#include "app/Application.h"

int main(int argc, char** argv) {
  return vexa::Application::Run(argc, argv);
}

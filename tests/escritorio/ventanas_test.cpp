int x_ventanas_test();

import {SliderProperty} from "./spinner/slider-property.js";
import {installSpinners} from "./spinner/spinners.js";

installSpinners();
window.SliderProperty = SliderProperty;

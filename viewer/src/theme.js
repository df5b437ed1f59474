// Light and dark: as the system wants it until somebody chooses.

const system = window.matchMedia('(prefers-color-scheme: dark)');

function followSystem() {
  document.documentElement.dataset.theme = system.matches ? 'dark' : 'light';
}

export function followTheme() {
  followSystem();
  system.addEventListener('change', followSystem);
}

export function switchTheme() {
  system.removeEventListener('change', followSystem);
  const { dataset } = document.documentElement;
  dataset.theme = dataset.theme === 'dark' ? 'light' : 'dark';
}
